// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "app/Date.h"

namespace dayvane::favorites {

/// A value as the data file gives it: never set, a whole number, another number, a date-time or a text.
using Value = std::variant<std::monostate, std::int64_t, double, Date, std::string>;

/// The value as the data file writes it (views/FavoritesFile.h), and back: what stands between two separators without
/// quotation marks. A text that is neither a number nor a date stays a text.
std::string FormatValue(const Value& value);
Value ParseUnquoted(std::string_view text);

/// The value as text; numbers in plain decimal, dates as the data file writes them.
std::string TextOf(const Value& value);

/// The value as a number, with a text that is one converted and an empty value 0. Fails with kTypeMismatch.
double NumberOf(const Value& value);

/// Whether the date is later than the value. Nothing and numbers count as dates on the same scale; no date is later
/// than a text.
bool IsLater(const Date& date, const Value& value);

/// A count and one more. Fails with kTypeMismatch.
Value OneMore(const Value& count);

}  // namespace dayvane::favorites
