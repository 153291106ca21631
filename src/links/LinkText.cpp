// SPDX-License-Identifier: MIT
#include "links/LinkText.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "base/Utf8.h"
#include "links/ByteView.h"
#include "links/ByteWriter.h"

namespace dayvane::links {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// Windows-1252 from 0x80 to 0x9F; all other bytes are the code points of the same number.
constexpr std::array<char16_t, 32> kWindows1252 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                   0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool IsHighSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool IsLowSurrogate(char32_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

/// Takes one code point off the front of a text that is not empty; U+FFFD for a byte that is not UTF-8.
char32_t NextCodePoint(std::string_view& text) {
  const auto [codePoint, length] = utf8::First(text);
  text.remove_prefix(length != 0 ? length : 1);
  return length != 0 ? codePoint : kReplacement;
}

std::string_view UpToNull(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

char AnsiCharacter(char32_t codePoint, char standIn) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint < 0x100)) return static_cast<char>(codePoint);
  const auto found = std::find(kWindows1252.begin(), kWindows1252.end(), codePoint);
  return found == kWindows1252.end() ? standIn : static_cast<char>(0x80 + (found - kWindows1252.begin()));
}

}  // namespace

void AppendUtf16(std::string& text, std::string_view utf16) {
  const ByteView units(utf16);
  text.reserve(text.size() + utf16.size() / 2);
  for (std::size_t i = 0; i + 1 < utf16.size(); i += 2) {
    char32_t codePoint = units.U16(i);
    if (codePoint == 0) return;
    if (IsHighSurrogate(codePoint) && IsLowSurrogate(units.U16(i + 2))) {
      i += 2;
      codePoint = 0x10000 + ((codePoint - 0xD800) << 10U) + (units.U16(i) - 0xDC00U);
    } else if (IsHighSurrogate(codePoint) || IsLowSurrogate(codePoint)) {
      codePoint = kReplacement;
    }
    utf8::Append(text, codePoint);
  }
}

void AppendAnsi(std::string& text, std::string_view ansi) {
  ansi = UpToNull(ansi);
  text.reserve(text.size() + ansi.size());
  for (const char c : ansi) {
    const auto byte = static_cast<unsigned char>(c);
    utf8::Append(text, byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80U] : byte);
  }
}

std::string ToUtf16(std::string_view text) {
  text = UpToNull(text);
  ByteWriter utf16;
  while (!text.empty()) {
    const char32_t codePoint = NextCodePoint(text);
    if (codePoint < 0x10000) {
      utf16.U16(codePoint);
    } else {
      utf16.U16(0xD800 + ((codePoint - 0x10000) >> 10U)).U16(0xDC00 + (codePoint & 0x3FFU));
    }
  }
  return utf16.Take();
}

std::string ToAnsi(std::string_view text, char standIn) {
  text = UpToNull(text);
  std::string ansi;
  while (!text.empty()) ansi += AnsiCharacter(NextCodePoint(text), standIn);
  return ansi;
}

}  // namespace dayvane::links
