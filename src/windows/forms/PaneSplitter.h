// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "windows/widgets/Window.h"

namespace dayvane::widgets {

/// The gap between the two sides of a pane, which the user drags.
class PaneSplitter : public Window {
 public:
  /// `dragged` gets the place wanted for the gap's left edge in its parent, in pixels.
  PaneSplitter(HWND parent, std::function<void(int left)> dragged);

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  std::function<void(int)> m_dragged;
  int m_grip = 0;  ///< where in the gap the mouse took it
};

}  // namespace dayvane::widgets
