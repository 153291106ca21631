// SPDX-License-Identifier: MIT
#include "views/FavoritesTable.h"

#include "base/Error.h"
#include "base/Text.h"
#include "views/FavoritesFile.h"

namespace dayvane::favorites {

namespace {

double DayNumber(const Date& date) {
  return static_cast<double>(date.SecondsSinceDayZero()) / 86400.0;
}

}  // namespace

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

}  // namespace dayvane::favorites
