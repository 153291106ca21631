// SPDX-License-Identifier: MIT
#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

/// Text in UTF-8. Case follows Unicode's simple mappings, whatever the user's locale; bytes that are no UTF-8 pass
/// through unchanged.
namespace dayvane::text {

/// Without blanks at either end.
std::string_view Trim(std::string_view text);

std::string ToUpper(std::string_view text);
std::string ToLower(std::string_view text);

/// -1, 0 or 1, without regard to case.
int CompareIgnoringCase(std::string_view left, std::string_view right);

bool EndsWithIgnoringCase(std::string_view text, std::string_view ending);

bool IsAscii(std::string_view text);

/// The whole text as a number in the form of std::from_chars, with nothing around it; nothing when it is none or does
/// not fit.
template <class Number>
std::optional<Number> ToNumber(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

/// The whole text as a decimal integer, blanks around it allowed; nothing when it is none or does not fit.
std::optional<std::int32_t> ToInt32(std::string_view text);

/// All of the text are decimal digits, and there is at least one.
bool IsNumeric(std::string_view text);

/// The integer in decimal, with leading zeros up to `digits`.
std::string Padded(std::int64_t number, int digits);

/// Whether a file name fits a pattern of "*" and "?", without regard to case; "*.*" fits every name.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace dayvane::text
