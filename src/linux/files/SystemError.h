// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace dayvane::files {

/// Throws the Error for the system call that just failed: errno as one of the numbers of base/Error.h, the system's own
/// words, and the path that the call was about.
[[noreturn]] void Fail(const std::string& path);

}  // namespace dayvane::files
