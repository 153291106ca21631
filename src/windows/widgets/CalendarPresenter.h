// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "controls/Calendar.h"
#include "controls/Deferred.h"
#include "windows/widgets/ChildWindow.h"

namespace dayvane::widgets {

/// Today, as the system's clock has it.
controls::Calendar::Day Today();

/// Shows a calendar as the system's, whose bold days are the highlighted ones. Going to another month moves the current
/// date there, so that the highlighted days are always those of the month shown. The system's calendar knows no day
/// before 1752: of those it keeps what it showed.
class CalendarPresenter : public ChildWindow {
 public:
  /// 1 Monday … 7 Sunday. A calendar that has no date yet shows today's month.
  CalendarPresenter(controls::Calendar& control, int firstDayOfWeek, HWND parent, const SharedLook& look);

  /// The pixels that one month takes.
  SIZE IdealSize() const;

  void SetLook(const SharedLook& look) override;

 protected:
  void ShowControl() override;
  std::optional<LRESULT> OnNotify(NMHDR& notice) override;
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  controls::Calendar::Day ShownDate() const;
  MONTHDAYSTATE HighlightsOf(const SYSTEMTIME& month) const;
  void ShowHighlights();
  void ShowWords();
  void GiveHighlights(NMDAYSTATE& wanted);
  void KeepToOneMonth(WINDOWPOS& place) const;
  void SetDate(controls::Calendar::Day day);

  controls::Calendar& m_control;
  bool m_isReady = false;
  bool m_showing = false;   ///< what changes in the window is not the user's doing
  bool m_hasMoved = false;  ///< since the key or the button of the mouse was pressed
  std::string m_shownWords;
  std::vector<MONTHDAYSTATE> m_given;  ///< that the window may still read
  controls::Deferred m_deferred;
};

}  // namespace dayvane::widgets
