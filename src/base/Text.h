// SPDX-License-Identifier: MIT
#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

/// Text in UTF-8. Case follows Unicode's simple mappings, whatever the user's locale; bytes that are not UTF-8 pass
/// through unchanged.
namespace dayvane::text {

/// Without blanks at either end.
std::string_view Trim(std::string_view text);

/// The parts between the separators: the whole text where there are none.
std::vector<std::string_view> Split(std::string_view text, char separator);

/// Takes the first line from the text and returns it without its line feed. A line without one is left where it is.
std::optional<std::string_view> TakeLine(std::string_view& text);

std::string ToUpper(std::string_view text);
std::string ToLower(std::string_view text);

/// -1, 0 or 1, without regard to case.
int CompareIgnoringCase(std::string_view left, std::string_view right);

bool EndsWithIgnoringCase(std::string_view text, std::string_view ending);

bool IsAscii(std::string_view text);
bool IsControl(char c);  ///< of ASCII

/// The whole text as a number in the form of std::from_chars, with nothing around it; nothing when it is not a number
/// or does not fit. An integer may be to another base than ten.
template <class Number, class... Base>
std::optional<Number> ToNumber(std::string_view text, Base... base) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base...);
  return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

/// The whole text as a decimal integer, blanks around it allowed; nothing when it is not one or does not fit.
std::optional<std::int32_t> ToInt32(std::string_view text);

/// All of the text are decimal digits, and there is at least one.
bool IsNumeric(std::string_view text);

/// The shortest decimal that reads back as this number.
std::string NumberText(double number);

/// The integer in decimal, with leading zeros up to `digits`.
std::string Padded(std::int64_t number, int digits);

/// Whether a file name fits a pattern of "*" and "?", without regard to case; "*.*" fits every name.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace dayvane::text
