// SPDX-License-Identifier: MIT
#include "windows/widgets/SystemDay.h"

namespace dayvane::widgets {

SYSTEMTIME ToSystemDay(std::chrono::local_days day) {
  const std::chrono::year_month_day date(day);
  SYSTEMTIME system{};
  system.wYear = static_cast<WORD>(static_cast<int>(date.year()));
  system.wMonth = static_cast<WORD>(static_cast<unsigned>(date.month()));
  system.wDay = static_cast<WORD>(static_cast<unsigned>(date.day()));
  system.wDayOfWeek = static_cast<WORD>(std::chrono::weekday(day).c_encoding());
  return system;
}

std::chrono::local_days FromSystemDay(const SYSTEMTIME& day) {
  return std::chrono::local_days(std::chrono::year(day.wYear) / day.wMonth / day.wDay);
}

}  // namespace dayvane::widgets
