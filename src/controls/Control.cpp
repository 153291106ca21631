// SPDX-License-Identifier: MIT
#include "controls/Control.h"

#include <algorithm>

namespace dayvane::controls {

void Control::Move(double left, double top, double width, double height) {
  width = std::max(width, 0.0);
  height = std::max(height, 0.0);
  const bool sized = width != m_width || height != m_height;
  if (!sized && left == m_left && top == m_top) return;
  m_left = left;
  m_top = top;
  m_width = width;
  m_height = height;
  Changed.Raise();
  if (sized) SizeChanged();
}

}  // namespace dayvane::controls
