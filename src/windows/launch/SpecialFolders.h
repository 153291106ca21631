// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace dayvane::launch {

/// Full path of a special folder of the shell, by its number (CSIDL_…), without a trailing "\". It is neither made nor
/// looked at: one that was moved to another computer need not answer. An Error where there is no such folder.
std::string SpecialFolder(int number);

}  // namespace dayvane::launch
