// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include "controls/SimpleControls.h"

namespace dayvane::widgets {

/// Lets a timer of the program tick.
class TimerPresenter {
 public:
  explicit TimerPresenter(controls::Timer& control);

 private:
  void Show();

  controls::Timer& m_control;
  QTimer m_timer;
  int m_shownInterval = 0;  ///< milliseconds; 0 while the timer stands
  controls::Connection m_changed;
};

}  // namespace dayvane::widgets
