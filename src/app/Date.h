// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <compare>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/DateConventions.h"

namespace dayvane {

/// The user's local date and time in whole seconds, on a day scale whose day 0 (1899-12-30) means "no date".
class Date {
 public:
  /// The zero date: no date.
  Date() = default;
  Date(std::chrono::local_seconds local);  // NOLINT(google-explicit-constructor): the clock's and the disk's own type

  /// Fails with kTypeMismatch when the parts are not a date or time of day.
  static Date Of(int year, unsigned month, unsigned day, int hour = 0, int minute = 0, int second = 0);

  bool IsZero() const { return m_seconds == 0; }
  bool HasDatePart() const { return DayNumber() != 0; }
  bool HasTimePart() const { return SecondOfDay() != 0; }

  int Year() const { return static_cast<int>(Calendar().year()); }
  unsigned Month() const { return static_cast<unsigned>(Calendar().month()); }  ///< 1 … 12
  unsigned Day() const { return static_cast<unsigned>(Calendar().day()); }      ///< 1 … 31
  int Hour() const { return SecondOfDay() / 3600; }
  int Minute() const { return SecondOfDay() / 60 % 60; }
  int Second() const { return SecondOfDay() % 60; }

  std::chrono::local_days LocalDay() const;  ///< without the time of day

  Date AddDays(std::int64_t count) const;
  Date Midnight() const;

  std::int64_t SecondsSinceDayZero() const { return m_seconds; }

  friend auto operator<=>(const Date&, const Date&) = default;

 private:
  explicit Date(std::int64_t seconds) : m_seconds(seconds) {}
  std::int64_t DayNumber() const;
  int SecondOfDay() const;
  std::chrono::year_month_day Calendar() const;

  std::int64_t m_seconds = 0;  ///< since day 0, midnight
};

/// The date written with a pattern. Known are d, dd, m, mm, mmmm (full month name), yy, yyyy, h, hh, nn (minutes),
/// ss and AM/PM; "Short Time" and "Short Date" stand for the user's own patterns; everything else is literal, and so is
/// a text in apostrophes ('' is one apostrophe). An "mm" that follows "hh" means minutes.
std::string Format(const Date& date, std::string_view pattern, const platform::DateConventions& conventions);

/// A month-first date text, "January/05/1998", "1/5/1998", or month and year alone, "1/98". The month is a number or a
/// full month name: the user's, English, or of one of the other languages; two-digit years are 1930 … 2029. The result
/// is midnight. Fails with kTypeMismatch when the text is not a date.
Date ParseMonthFirst(std::string_view text, const platform::DateConventions& conventions,
                     std::span<const platform::MonthNames> otherLanguages = {});

struct DateParts {
  int month = 0;
  int day = 0;
  int year = 0;
};

/// The numbers of a date's text in the user's short date form, in which the month may also be a full name.
/// Fails with kTypeMismatch when the text does not have three parts.
DateParts SplitShortDate(std::string_view text, const platform::DateConventions& conventions);

/// A desktop's conventions as the program can use them: month names that cannot name folders, or that are not all
/// different, become the English ones; a short date that would not be read back as it was written is "yyyy-mm-dd"; a
/// short time without hours or minutes is "hh:nn".
platform::DateConventions Usable(platform::DateConventions conventions);

}  // namespace dayvane
