// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace dayvane::files {

/// Throws the Error for the system call that just failed: GetLastError as one of the numbers of base/Error.h, the
/// system's own words, and the path that the call was about.
[[noreturn]] void Fail(const std::string& path);

/// The same for an error that was kept while something else was done.
[[noreturn]] void Fail(std::uint32_t systemError, const std::string& path);

}  // namespace dayvane::files
