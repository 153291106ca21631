// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "windows/files/Win32.h"

namespace dayvane::widgets {

/// Shows that the program is busy. When that was begun by a timer, it shows only once it has lasted long enough for
/// anyone to see it: a poll that is over in a moment draws nothing.
class LateShow {
 public:
  explicit LateShow(std::function<void()> show);
  LateShow(const LateShow&) = delete;
  LateShow& operator=(const LateShow&) = delete;
  ~LateShow();

  /// Some state is new. Shown at once, or later when it says busy and the user did not ask for the work.
  void Changed(bool isBusy);

  /// Shows what has lasted long enough by now. Called from the middle of the program's work, where no timer ticks.
  static void ShowWhatLasts();

 private:
  std::function<void()> m_show;
  std::optional<ULONGLONG> m_since;  ///< milliseconds since the system's start
};

}  // namespace dayvane::widgets
