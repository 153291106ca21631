// SPDX-License-Identifier: MIT
#include "views/FavoritesValue.h"

#include <array>
#include <cmath>
#include <optional>

#include "base/Error.h"
#include "base/Text.h"

namespace dayvane::favorites {

namespace {

double DayNumber(const Date& date) {
  return static_cast<double>(date.SecondsSinceDayZero()) / 86400.0;
}

std::string FormatDate(const Date& date) {
  const platform::DateConventions plain;
  const bool timeAlone = !date.HasDatePart();
  const char* pattern = timeAlone ? "hh:nn:ss" : date.HasTimePart() ? "yyyy-mm-dd hh:nn:ss" : "yyyy-mm-dd";
  return "#" + Format(date, pattern, plain) + "#";
}

/// A date-time as FormatDate writes it. The half that it leaves out is the zero date's.
std::optional<Date> ParseDate(std::string_view written) {
  constexpr std::string_view kShape = "0000-00-00 00:00:00";
  std::string text(written);
  if (text.size() == 10) text += " 00:00:00";
  if (text.size() == 8) text = "1899-12-30 " + text;
  if (text.size() != kShape.size()) return std::nullopt;
  std::array<int, 6> parts{};
  std::size_t part = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isDigit = text[i] >= '0' && text[i] <= '9';
    if (kShape[i] == '0' ? !isDigit : text[i] != kShape[i]) return std::nullopt;
    if (isDigit)
      parts[part] = parts[part] * 10 + (text[i] - '0');
    else
      ++part;
  }
  const auto [year, month, day, hour, minute, second] = parts;
  try {
    return Date::Of(year, static_cast<unsigned>(month), static_cast<unsigned>(day), hour, minute, second);
  } catch (const Error&) {
    return std::nullopt;  // A damaged file may hold any digits.
  }
}

}  // namespace

std::string FormatValue(const Value& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::to_string(*whole);
  if (const auto* number = std::get_if<double>(&value))
    return text::NumberText(*number + 0.0);  // a negative zero is zero
  if (const auto* date = std::get_if<Date>(&value)) return FormatDate(*date);
  if (const auto* text = std::get_if<std::string>(&value)) return '"' + *text + '"';
  return {};
}

Value ParseUnquoted(std::string_view text) {
  if (text.empty()) return {};
  if (text.size() >= 2 && text.front() == '#' && text.back() == '#')
    if (const auto date = ParseDate(text.substr(1, text.size() - 2))) return *date;
  if (const auto whole = text::ToNumber<std::int64_t>(text)) return *whole;
  if (const auto number = text::ToNumber<double>(text)) return *number;
  return std::string(text);
}

std::string TextOf(const Value& value) {
  const auto* text = std::get_if<std::string>(&value);
  return text != nullptr ? *text : FormatValue(value);
}

double NumberOf(const Value& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* date = std::get_if<Date>(&value)) return DayNumber(*date);
  const auto* text = std::get_if<std::string>(&value);
  if (text == nullptr) return 0;
  const auto number = text::ToNumber<double>(text::Trim(*text));
  if (!number) throw Error(kTypeMismatch, "Type mismatch: \"" + *text + "\" is no number");
  return *number;
}

bool IsLater(const Date& date, const Value& value) {
  if (std::holds_alternative<std::string>(value)) return false;
  if (const auto* other = std::get_if<Date>(&value)) return date > *other;
  return DayNumber(date) > NumberOf(value);
}

Value OneMore(const Value& count) {
  if (const auto* whole = std::get_if<std::int64_t>(&count); whole != nullptr && *whole < INT64_MAX) return *whole + 1;
  // A count that was written as a text or with a fraction goes on as a number.
  const double more = NumberOf(count) + 1;
  constexpr double kExact = 9007199254740992.0;  // 2 to the 53rd: whole numbers up to here are exact
  if (more == std::floor(more) && std::fabs(more) < kExact) return static_cast<std::int64_t>(more);
  return more;
}

}  // namespace dayvane::favorites
