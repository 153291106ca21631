// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

namespace dayvane::platform {

/// Full month names of a language, January first.
using MonthNames = std::array<std::string, 12>;

/// How the user's language and country write dates. Filled by the platform, read by app/Date.
struct DateConventions {
  /// In the form in which a name stands alone.
  MonthNames monthNames{"January", "February", "March",     "April",   "May",      "June",
                        "July",    "August",   "September", "October", "November", "December"};

  /// The short date: d, dd, m, mm, yy, yyyy and literal separators. Here and in the short time a text in apostrophes
  /// is literal, whatever letters it holds.
  std::string shortDate = "m/d/yyyy";

  /// The short time: h, hh, nn (minutes), AM/PM (then the hours count from 1 to 12) and literal separators.
  std::string shortTime = "hh:nn";
  std::string am = "AM";
  std::string pm = "PM";

  int firstDayOfWeek = 7;  ///< 1 Monday … 7 Sunday
};

}  // namespace dayvane::platform
