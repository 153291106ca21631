// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <functional>

namespace dayvane::widgets {

/// Shows that the program is busy. When that was begun by a timer, it shows only once it has lasted long enough for
/// anyone to see it: a poll that is over in a moment draws nothing.
class LateShow {
 public:
  explicit LateShow(std::function<void()> show);

  /// Some state is new. Shown at once, or later when it says busy and the user did not ask for the work.
  void Changed(bool isBusy);

 private:
  std::function<void()> m_show;
  QTimer m_timer;
};

}  // namespace dayvane::widgets
