// SPDX-License-Identifier: MIT
#include "views/CCalendar.h"

#include "app/IgnoreErrors.h"
#include "app/ReportErrors.h"
#include "base/Text.h"
#include "fs/Dir.h"

namespace dayvane {

namespace {

constexpr int kLastDay = 31;  // Always 31: no folder can exist for a day that the month does not have.

Date ToDate(controls::Calendar::Day day) {
  return std::chrono::local_seconds(day);
}

}  // namespace

void CCalendar::SetCalendar(controls::Calendar* calendar) {
  m_calendar = calendar;
  m_dateChange = {};
  m_documentsWanted = {};
  if (calendar == nullptr) return;
  m_dateChange = calendar->DateChange.ConnectScoped([this](auto, auto newDay) { Calendar_DateChange(ToDate(newDay)); });
  m_documentsWanted =
      calendar->DocumentsWanted.ConnectScoped([this](auto day, std::size_t& count) { count = Documents(ToDate(day)); });
}

Date CCalendar::Value() const {
  return ToDate(Demand(m_calendar, ".Value: Calendar is Nothing").CurrentDate());
}

void CCalendar::SetValue(const Date& date) {
  Assert(!date.IsZero(), ".Value: Invalid date");
  Demand(m_calendar, ".Value: Calendar is Nothing").SetCurrentDate(date.LocalDay());
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

std::size_t CCalendar::Documents(const Date& day) const {
  const auto& dates = m_application.desktop.dates;
  const std::string folder = DailyPath + "\\" + Format(day, "yyyy", dates) + "\\" + Format(day, "mmmm", dates) + "\\" +
                             Format(day, "dd", dates);
  std::size_t count = 0;
  IgnoreErrors([&] {
    for (const auto& entry : Dir(m_application.desktop.files, folder + "\\*.lnk", DirKinds::Files))
      if (IsOfDocument(folder + "\\" + entry.name)) ++count;
  });
  return count;
}

/// The shortcuts of the day's programs lie beside those of its documents.
bool CCalendar::IsOfDocument(const std::string& shortcutFile) const {
  bool isOfDocument = true;
  IgnoreErrors([&] { isOfDocument = !LeadsToProgram(m_application.shellServices.ReadShortcut(shortcutFile).link); });
  return isOfDocument;
}

void CCalendar::SetListed(std::optional<controls::Calendar::Day> day) {
  if (m_calendar != nullptr) m_calendar->SetListedDay(day);
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
