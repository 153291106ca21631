// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>

#include "windows/widgets/Window.h"

namespace dayvane::widgets {

/// What must not be done in the middle of the event that led to it, such as ending the window that was clicked: done
/// from the event loop, in its order. What still waits when this goes is not done.
class Later : private Window {
 public:
  Later();

  void Do(std::function<void()> act);

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  std::deque<std::function<void()>> m_acts;
};

}  // namespace dayvane::widgets
