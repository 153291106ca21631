// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

#include "controls/SimpleControls.h"
#include "linux/widgets/ControlLink.h"

namespace dayvane::widgets {

/// Shows a push button.
class ButtonPresenter : public QPushButton {
 public:
  explicit ButtonPresenter(controls::Button& control, QWidget* parent = nullptr)
      : QPushButton(parent), m_link(control, *this, [this, &control] {
          setText(QString::fromStdString(control.Caption()));
          setToolTip(QString::fromStdString(control.ToolTipText()));
        }) {
    // Queued until the press is over: it may open a message box, for which a screen reader that pressed must not wait.
    connect(
        this, &QPushButton::clicked, this, [&control] { control.Press(); }, Qt::QueuedConnection);
    m_link.Show();
  }

 private:
  ControlLink m_link;
};

}  // namespace dayvane::widgets
