// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

#include "controls/SimpleControls.h"
#include "linux/widgets/ControlLink.h"

namespace dayvane::widgets {

/// Shows a push button.
class ButtonPresenter : public QPushButton {
 public:
  explicit ButtonPresenter(controls::Button& control, QWidget* parent = nullptr);

 private:
  ControlLink m_link;
};

}  // namespace dayvane::widgets
