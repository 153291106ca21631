// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <optional>

#include "controls/Control.h"

namespace dayvane::controls {

/// A month calendar: one current date, and days of its month that stand out.
class Calendar : public Control {
 public:
  using Day = std::chrono::local_days;

  /// The first and the last day that the program can spell and has folders for.
  static constexpr Day kFirstDay{std::chrono::year{100} / 1 / 1};
  static constexpr Day kLastDay{std::chrono::year{9999} / 12 / 31};

  Day CurrentDate() const { return m_current; }

  /// Raises WillChangeDate, then DateChange, also when the date stays the same. A listener may cancel. A day before the
  /// first or after the last changes nothing.
  void SetCurrentDate(Day date) {
    if (date < kFirstDay || date > kLastDay) return;
    bool cancel = false;
    const Day old = m_current;
    WillChangeDate.Raise(old, date, cancel);
    if (cancel) return;
    m_current = date;
    Changed.Raise();
    DateChange.Raise(old, date);
  }

  /// Day of the month, 1 … 31.
  bool Highlight(int day) const { return m_highlights.at(static_cast<std::size_t>(day)); }
  void SetHighlight(int day, bool highlighted) { m_highlights.at(static_cast<std::size_t>(day)) = highlighted; }

  /// The day whose documents are listed beside the calendar, which need not be the current date: a day without
  /// documents can be chosen, and the list stays as it was.
  std::optional<Day> ListedDay() const { return m_listed; }
  void SetListedDay(std::optional<Day> day) { Assign(m_listed, day); }

  /// How many documents a day has, which is asked only where the day is spoken: none as long as nobody can tell.
  std::size_t Documents(Day day) {
    std::size_t count = 0;
    DocumentsWanted.Raise(day, count);
    return count;
  }

  /// Shows highlights that were set since.
  void Redraw() { Changed.Raise(); }

  Signal<Day, Day> DateChange;                ///< old, new
  Signal<Day, Day, bool&> WillChangeDate;     ///< old, new, cancel
  Signal<Day, std::size_t&> DocumentsWanted;  ///< how many a day has

 private:
  Day m_current{std::chrono::days{0}};
  std::optional<Day> m_listed;
  std::array<bool, 32> m_highlights{};
};

}  // namespace dayvane::controls
