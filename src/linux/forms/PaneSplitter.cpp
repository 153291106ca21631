// SPDX-License-Identifier: MIT
#include "linux/forms/PaneSplitter.h"

#include <QMouseEvent>
#include <utility>

namespace dayvane::widgets {

PaneSplitter::PaneSplitter(std::function<void(int)> dragged) : m_dragged(std::move(dragged)) {
  setCursor(Qt::SplitHCursor);
}

void PaneSplitter::mousePressEvent(QMouseEvent* event) {
  m_grip = event->position().toPoint().x();
}

void PaneSplitter::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons().testFlag(Qt::LeftButton)) m_dragged(mapToParent(event->position().toPoint()).x() - m_grip);
}

}  // namespace dayvane::widgets
