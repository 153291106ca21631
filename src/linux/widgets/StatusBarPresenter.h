// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QStatusBar>

#include "controls/SimpleControls.h"
#include "linux/files/NativePath.h"
#include "linux/widgets/ControlLink.h"

namespace dayvane::widgets {

/// Shows the status bar.
class StatusBarPresenter : public QStatusBar {
 public:
  explicit StatusBarPresenter(controls::StatusBar& control, QWidget* parent = nullptr)
      : QStatusBar(parent), m_control(control), m_link(control, *this, [this] { Show(); }) {
    m_text.setTextFormat(Qt::PlainText);
    addWidget(&m_text, 1);
    m_link.Show();
  }

  QString Text() const { return m_text.text(); }

 private:
  void Show() {
    const QString text = QString::fromStdString(files::ForReading(m_control.Text()));
    m_text.setText(text);
    setAccessibleName(text);
  }

  const controls::StatusBar& m_control;
  QLabel m_text;
  ControlLink m_link;
};

}  // namespace dayvane::widgets
