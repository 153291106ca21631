// SPDX-License-Identifier: MIT
#include "base/Utf8.h"

#include <array>

namespace dayvane::utf8 {

namespace {

std::size_t LengthOf(unsigned char lead) {
  return lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
}

bool IsSurrogate(char32_t codePoint) {
  return codePoint >= 0xD800 && codePoint < 0xE000;
}

}  // namespace

CodePoint First(std::string_view text) {
  if (text.empty()) return {};
  const auto lead = static_cast<unsigned char>(text[0]);
  const std::size_t length = LengthOf(lead);
  if (length == 0 || length > text.size()) return {};
  char32_t codePoint = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0U) != 0x80U) return {};
    codePoint = codePoint << 6U | (byte & 0x3FU);
  }
  constexpr std::array<char32_t, 5> kSmallest{0, 0, 0x80, 0x800, 0x10000};
  const bool sound = codePoint >= kSmallest[length] && codePoint < 0x110000 && !IsSurrogate(codePoint);
  return sound ? CodePoint{codePoint, length} : CodePoint{};
}

void Append(std::string& text, char32_t codePoint) {
  if (codePoint < 0x80) {
    text += static_cast<char>(codePoint);
    return;
  }
  const int continuations = codePoint < 0x800 ? 1 : codePoint < 0x10000 ? 2 : 3;
  static constexpr unsigned kLeads[] = {0, 0xC0, 0xE0, 0xF0};
  text += static_cast<char>(kLeads[continuations] | (codePoint >> (6 * continuations)));
  for (int i = continuations - 1; i >= 0; --i) text += static_cast<char>(0x80U | ((codePoint >> (6 * i)) & 0x3FU));
}

bool IsValid(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = First(text).length;
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

}  // namespace dayvane::utf8
