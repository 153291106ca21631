// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace dayvane::files {

/// What the symbolic link or junction at the native path says that it leads to, as a native path; nothing where there
/// is none. What is given from the link's own folder is counted from there.
std::optional<std::wstring> LinkTarget(const std::wstring& native);

}  // namespace dayvane::files
