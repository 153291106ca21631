// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Where the program's text, UTF-8, becomes the system's, UTF-16, and back. Nothing is guessed: a text that is not well
/// formed has no other form.
namespace dayvane::files {

std::optional<std::wstring> ToWide(std::string_view text);
std::optional<std::string> FromWide(std::wstring_view wide);

}  // namespace dayvane::files
