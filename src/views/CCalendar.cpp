// SPDX-License-Identifier: MIT
#include "views/CCalendar.h"

#include "app/ReportErrors.h"
#include "base/Text.h"
#include "fs/Dir.h"

namespace dayvane {

namespace {

constexpr int kLastDay = 31;  // Always 31: no folder can exist for a day that the month does not have.

Date ToDate(controls::Calendar::Day day) {
  return std::chrono::local_seconds(day);
}

controls::Calendar::Day ToDay(const Date& date) {
  return std::chrono::local_days{std::chrono::year{date.Year()} / static_cast<int>(date.Month()) /
                                 static_cast<int>(date.Day())};
}

}  // namespace

void CCalendar::SetCalendar(controls::Calendar* calendar) {
  m_calendar = calendar;
  m_dateChange =
      calendar == nullptr
          ? controls::Connection()
          : calendar->DateChange.ConnectScoped([this](auto, auto newDay) { Calendar_DateChange(ToDate(newDay)); });
}

Date CCalendar::Value() const {
  return ToDate(Demand(m_calendar, ".Value: Calendar is Nothing").CurrentDate());
}

void CCalendar::SetValue(const Date& date) {
  Assert(!date.IsZero(), ".Value: Invalid date");
  Demand(m_calendar, ".Value: Calendar is Nothing").SetCurrentDate(ToDay(date));
}

void CCalendar::HighlightDays(const Date& date) {
  // The text is the one of SetValue, deliberately.
  Assert(!date.IsZero(), ".Value: Invalid date");
  Assert(!text::Trim(DailyPath).empty(), ".HighlightDays: DailyPath is missing");
  Demand(m_calendar, ".HighlightDays: Calendar is Nothing");
  for (int day = 1; day <= kLastDay; ++day) m_calendar->SetHighlight(day, false);
  auto& files = m_application.desktop.files;
  const auto& dates = m_application.desktop.dates;
  const std::string year = DailyPath + "\\" + Format(date, "yyyy", dates);
  const std::string month = year + "\\" + Format(date, "mmmm", dates);
  if (FolderExists(files, year) && FolderExists(files, month))
    for (int day = 1; day <= kLastDay; ++day)
      if (FolderExists(files, month + "\\" + text::Padded(day, 2))) m_calendar->SetHighlight(day, true);
  m_calendar->Redraw();
}

void CCalendar::SetListed(const Date& date) {
  if (m_calendar == nullptr) return;
  m_calendar->SetListedDay(date.IsZero() ? std::nullopt : std::optional(ToDay(date)));
}

void CCalendar::Calendar_DateChange(const Date& newDate) {
  ReportErrors(m_application, kSelectingDate, ClassName, "Calendar_DateChange", [&] {
    const std::string text = Format(newDate, "Short Date", m_application.desktop.dates);
    const DateParts parts = m_application.shellServices.SplitDate(text);
    const std::string month = std::to_string(parts.month);
    const std::string year = std::to_string(parts.year);
    const bool changed = month != m_month || year != m_year;
    m_month = month;
    m_year = year;
    if (changed) HighlightDays(newDate);
    DateChange.Raise(newDate);
  });
}

}  // namespace dayvane
