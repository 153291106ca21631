// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace dayvane::files {

/// The text with the environment's variables in the place of their names ("%SystemRoot%"); names that the environment
/// does not have stay as they are. Nothing for a text that would become longer than a path can be.
std::optional<std::wstring> ExpandVariables(const std::wstring& text);

}  // namespace dayvane::files
