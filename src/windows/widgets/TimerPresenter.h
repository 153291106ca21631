// SPDX-License-Identifier: MIT
#pragma once

#include "controls/SimpleControls.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

/// Lets a timer of the program tick, by a window that nobody sees.
class TimerPresenter : public Window {
 public:
  explicit TimerPresenter(controls::Timer& control);

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void Show();

  controls::Timer& m_control;
  int m_shownInterval = 0;  ///< milliseconds; 0 while the timer stands
  controls::Connection m_changed;
};

}  // namespace dayvane::widgets
