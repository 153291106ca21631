// SPDX-License-Identifier: MIT
#include "windows/widgets/CalendarPresenter.h"

#include <algorithm>
#include <array>

#include "base/ScopedValue.h"
#include "windows/widgets/DayWords.h"
#include "windows/widgets/SystemDay.h"

namespace dayvane::widgets {

using controls::Calendar;

namespace {

/// MCN_GETDAYSTATE, which is MCN_FIRST - 1; the compiler's header has another number.
constexpr UINT kMcnGetDayState = 0U - 747U;

/// The system's calendar takes no earlier one: the first whole month of the Gregorian calendar in Britain.
constexpr SYSTEMTIME kFirstOfSystem{.wYear = 1752,
                                    .wMonth = 10,
                                    .wDayOfWeek = 0,
                                    .wDay = 1,
                                    .wHour = 0,
                                    .wMinute = 0,
                                    .wSecond = 0,
                                    .wMilliseconds = 0};

void GoToNextMonth(SYSTEMTIME& month) {
  constexpr WORD kMonths = 12;
  month.wMonth = static_cast<WORD>(month.wMonth % kMonths + 1);
  if (month.wMonth == 1) ++month.wYear;
}

std::string Explanation(const Calendar& control, Calendar::Day chosen, bool hasDocuments) {
  if (chosen == control.ListedDay()) return {};
  const auto listed = control.ListedDay();
  const std::string list = listed ? "The list is of " + DayWords(*listed) + '.' : "No day is listed.";
  return hasDocuments ? list : "No documents on " + DayWords(chosen) + ". " + list;
}

}  // namespace

Calendar::Day Today() {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  return FromSystemDay(now);
}

CalendarPresenter::CalendarPresenter(Calendar& control, int firstDayOfWeek, HWND parent, const SharedLook& look)
    : ChildWindow(control,
                  {.className = MONTHCAL_CLASSW,
                   .style = MCS_DAYSTATE | MCS_NOTODAY | WS_TABSTOP | WS_CLIPSIBLINGS,
                   .extendedStyle = WS_EX_CLIENTEDGE},
                  parent, look),
      m_control(control) {
  std::array<SYSTEMTIME, 2> range{kFirstOfSystem, ToSystemDay(Calendar::kLastDay)};
  SendMessageW(Handle(), MCM_SETRANGE, GDTR_MIN | GDTR_MAX, reinterpret_cast<LPARAM>(range.data()));
  SendMessageW(Handle(), MCM_SETFIRSTDAYOFWEEK, 0, firstDayOfWeek - 1);
  m_isReady = true;
  Show();
}

SIZE CalendarPresenter::IdealSize() const {
  RECT month{};
  SendMessageW(Handle(), MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(&month));
  AdjustWindowRectExForDpi(&month, WS_CHILD, FALSE, WS_EX_CLIENTEDGE, CurrentLook()->Dpi());
  return {month.right - month.left, month.bottom - month.top};
}

void CalendarPresenter::SetLook(const SharedLook& look) {
  ChildWindow::SetLook(look);
  InvalidateRect(Handle(), nullptr, TRUE);
}

Calendar::Day CalendarPresenter::ShownDate() const {
  return m_control.CurrentDate() == Calendar::Day{} ? Today() : m_control.CurrentDate();
}

void CalendarPresenter::ShowControl() {
  const ScopedValue showing(m_showing, true);
  const SYSTEMTIME wanted = ToSystemDay(ShownDate());
  SYSTEMTIME shown{};
  SendMessageW(Handle(), MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&shown));
  if (shown.wYear != wanted.wYear || shown.wMonth != wanted.wMonth || shown.wDay != wanted.wDay)
    SendMessageW(Handle(), MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&wanted));
  ShowHighlights();
  ShowWords();
}

MONTHDAYSTATE CalendarPresenter::HighlightsOf(const SYSTEMTIME& month) const {
  constexpr int kDays = 31;
  const SYSTEMTIME current = ToSystemDay(m_control.CurrentDate());
  if (month.wYear != current.wYear || month.wMonth != current.wMonth) return 0;
  MONTHDAYSTATE days = 0;
  for (int day = 1; day <= kDays; ++day)
    if (m_control.Highlight(day)) days |= 1U << (day - 1);
  return days;
}

void CalendarPresenter::ShowHighlights() {
  // Moved from code, the calendar does not ask for the bold days of its new month.
  std::array<SYSTEMTIME, 2> range{};
  const LRESULT months =
      SendMessageW(Handle(), MCM_GETMONTHRANGE, GMR_DAYSTATE, reinterpret_cast<LPARAM>(range.data()));
  std::vector<MONTHDAYSTATE> days;
  SYSTEMTIME month = range[0];
  for (LRESULT index = 0; index < months; ++index) {
    days.push_back(HighlightsOf(month));
    GoToNextMonth(month);
  }
  SendMessageW(Handle(), MCM_SETDAYSTATE, days.size(), reinterpret_cast<LPARAM>(days.data()));
}

void CalendarPresenter::ShowWords() {
  const Calendar::Day day = ShownDate();
  const bool hasDocuments = HighlightsOf(ToSystemDay(day)) >> (ToSystemDay(day).wDay - 1) & 1U;
  const std::string explanation = Explanation(m_control, day, hasDocuments);
  std::string words = "Calendar, " + DayWords(day) + (explanation.empty() ? "" : ". " + explanation);
  if (words == m_shownWords) return;
  m_shownWords = std::move(words);
  SetSpokenName(m_shownWords);
}

void CalendarPresenter::GiveHighlights(NMDAYSTATE& wanted) {
  m_given.clear();
  SYSTEMTIME month = wanted.stStart;
  for (int index = 0; index < wanted.cDayState; ++index) {
    m_given.push_back(HighlightsOf(month));
    GoToNextMonth(month);
  }
  wanted.prgDayState = m_given.data();
}

std::optional<LRESULT> CalendarPresenter::OnNotify(NMHDR& notice) {
  if (!m_isReady) return std::nullopt;
  switch (notice.code) {
    case kMcnGetDayState:
      GiveHighlights(reinterpret_cast<NMDAYSTATE&>(notice));
      return 0;
    case MCN_SELCHANGE: {
      const Calendar::Day day = FromSystemDay(reinterpret_cast<const NMSELCHANGE&>(notice).stSelStart);
      if (m_showing || day == ShownDate()) return 0;
      m_hasMoved = true;
      SetDate(day);
      return 0;
    }
    case MCN_SELECT:
      // The same day again is chosen too; another one has just been told.
      if (!m_hasMoved) SetDate(FromSystemDay(reinterpret_cast<const NMSELCHANGE&>(notice).stSelStart));
      return 0;
    default:
      return std::nullopt;
  }
}

LRESULT CalendarPresenter::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (m_isReady && (message == WM_LBUTTONDOWN || message == WM_KEYDOWN)) m_hasMoved = false;
  if (m_isReady && message == WM_WINDOWPOSCHANGING) KeepToOneMonth(*reinterpret_cast<WINDOWPOS*>(lParam));
  return ChildWindow::OnMessage(message, wParam, lParam);
}

void CalendarPresenter::KeepToOneMonth(WINDOWPOS& place) const {
  // In more room the system's calendar would show a second month.
  if ((place.flags & SWP_NOSIZE) != 0) return;
  const SIZE month = IdealSize();
  place.x += std::max<int>(place.cx - month.cx, 0) / 2;
  place.cx = std::min<int>(place.cx, month.cx);
  place.cy = std::min<int>(place.cy, month.cy);
}

void CalendarPresenter::SetDate(Calendar::Day day) {
  m_deferred.AfterWork([this, day] {
    m_control.SetCurrentDate(std::clamp(day, Calendar::kFirstDay, Calendar::kLastDay));
    Show();  // the program may have refused
  });
}

}  // namespace dayvane::widgets
