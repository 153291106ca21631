// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// UTF-8 as RFC 3629 has it: no overlong forms, no surrogates, nothing above U+10FFFF.
namespace dayvane::utf8 {

struct CodePoint {
  char32_t value = 0;
  std::size_t length = 0;  ///< bytes, 0 where the text begins with none that are UTF-8
};

/// The code point that a text begins with.
CodePoint First(std::string_view text);

void Append(std::string& text, char32_t codePoint);

bool IsValid(std::string_view text);

}  // namespace dayvane::utf8
