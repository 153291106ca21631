// SPDX-License-Identifier: MIT
#include "linux/widgets/PanePresenter.h"

namespace dayvane::widgets {

PanePresenter::PanePresenter(controls::PictureBox& control, QWidget* parent)
    : QWidget(parent), m_link(control, *this, [] {}) {
  m_link.Show();
}

void PanePresenter::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  m_placement.PlaceAll();
}

}  // namespace dayvane::widgets
