// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>

namespace dayvane::widgets {

/// The gap between the two sides of a pane, which the user drags.
class PaneSplitter : public QWidget {
 public:
  /// `dragged` is told where the gap's left edge is wanted in its parent, in logical pixels.
  explicit PaneSplitter(std::function<void(int left)> dragged);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  std::function<void(int)> m_dragged;
  int m_grip = 0;  ///< where in the gap the mouse took it
};

}  // namespace dayvane::widgets
