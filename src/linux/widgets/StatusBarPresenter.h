// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QStatusBar>

#include "controls/SimpleControls.h"
#include "linux/widgets/ControlLink.h"

namespace dayvane::widgets {

/// Shows the status bar.
class StatusBarPresenter : public QStatusBar {
 public:
  explicit StatusBarPresenter(controls::StatusBar& control, QWidget* parent = nullptr);

  QString Text() const { return m_text.text(); }

 private:
  void Show();

  const controls::StatusBar& m_control;
  QLabel m_text;
  ControlLink m_link;
};

}  // namespace dayvane::widgets
