// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "app/Date.h"

namespace dayvane::favorites {

/// A value as the data file gives it: never set, a whole number, another number, a date-time or a text.
using Value = std::variant<std::monostate, std::int64_t, double, Date, std::string>;

/// Fields of a record, in the order of the data file.
enum Field : std::size_t {
  kDaysAccessed = 0,
  kLastAccessed,
  kShortcutFile,
  kTargetFileName,
  kFolder,
  kType,
  kIconFile,
  kIconIndex,
  kFieldCount
};

using Record = std::array<Value, kFieldCount>;
using Table = std::vector<Record>;

/// The value as text; numbers in plain decimal, dates as the data file writes them.
std::string TextOf(const Value& value);

/// The value as a number, with a text that is one converted and an empty value 0. Fails with kTypeMismatch.
double NumberOf(const Value& value);

/// Whether the date is later than the value. Nothing and numbers count as dates on the same scale; no date is later
/// than a text.
bool IsLater(const Date& date, const Value& value);

}  // namespace dayvane::favorites
