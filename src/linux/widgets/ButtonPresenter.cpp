// SPDX-License-Identifier: MIT
#include "linux/widgets/ButtonPresenter.h"

namespace dayvane::widgets {

ButtonPresenter::ButtonPresenter(controls::Button& control, QWidget* parent)
    : QPushButton(parent), m_link(control, *this, [this, &control] {
        setText(QString::fromStdString(control.Caption()));
        setToolTip(QString::fromStdString(control.ToolTipText()));
      }) {
  // Told after the press is done: it may open a message box, for which a screen reader that pressed must not wait.
  connect(
      this, &QPushButton::clicked, this, [&control] { control.Press(); }, Qt::QueuedConnection);
  m_link.Show();
}

}  // namespace dayvane::widgets
