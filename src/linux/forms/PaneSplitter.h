// SPDX-License-Identifier: MIT
#pragma once

#include <QMouseEvent>
#include <QWidget>
#include <functional>
#include <utility>

namespace dayvane::widgets {

/// The gap between the two sides of a pane, which the user drags.
class PaneSplitter : public QWidget {
 public:
  /// `dragged` gets the place wanted for the gap's left edge in its parent, in logical pixels.
  explicit PaneSplitter(std::function<void(int left)> dragged) : m_dragged(std::move(dragged)) {
    setCursor(Qt::SplitHCursor);
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override { m_grip = event->position().toPoint().x(); }
  void mouseMoveEvent(QMouseEvent* event) override {
    if (event->buttons().testFlag(Qt::LeftButton)) m_dragged(mapToParent(event->position().toPoint()).x() - m_grip);
  }

 private:
  std::function<void(int)> m_dragged;
  int m_grip = 0;  ///< where in the gap the mouse took it
};

}  // namespace dayvane::widgets
