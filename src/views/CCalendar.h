// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "app/Application.h"
#include "app/Asserting.h"
#include "app/Date.h"
#include "controls/Calendar.h"

namespace dayvane {

/// Wraps the month calendar: keeps the highlighted days in step with the repository and passes date changes on.
class CCalendar : private Asserting {
 public:
  static constexpr const char* ClassName = "CCalendar";

  explicit CCalendar(Application& application) : Asserting(application, ClassName), m_application(application) {}

  /// The calendar control; its events are handled from then on. It must outlive this object or be taken away.
  void SetCalendar(controls::Calendar* calendar);

  std::string DailyPath;  ///< root of the repository

  Date Value() const;
  void SetValue(const Date& date);  ///< raises DateChange

  /// Highlights the days of the date's month that have a day folder, empty or not.
  void HighlightDays(const Date& date);
  void Refresh() { Demand(m_calendar, ".Refresh: Calendar is Nothing").Redraw(); }

  /// Shows which day's documents are listed.
  void SetListed(std::optional<controls::Calendar::Day> day);

  controls::Signal<const Date&> DateChange;  ///< the new date

 private:
  void Calendar_DateChange(const Date& newDate);
  std::size_t Documents(const Date& day) const;
  bool IsOfDocument(const std::string& shortcutFile) const;

  Application& m_application;
  controls::Calendar* m_calendar = nullptr;
  controls::Connection m_dateChange;
  controls::Connection m_documentsWanted;
  std::string m_month;  ///< of the date shown last
  std::string m_year;
};

}  // namespace dayvane
