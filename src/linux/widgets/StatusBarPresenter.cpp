// SPDX-License-Identifier: MIT
#include "linux/widgets/StatusBarPresenter.h"

#include "linux/files/NativePath.h"

namespace dayvane::widgets {

StatusBarPresenter::StatusBarPresenter(controls::StatusBar& control, QWidget* parent)
    : QStatusBar(parent), m_control(control), m_link(control, *this, [this] { Show(); }) {
  m_text.setTextFormat(Qt::PlainText);
  addWidget(&m_text, 1);
  m_link.Show();
}

void StatusBarPresenter::Show() {
  const QString text = QString::fromStdString(files::ForReading(m_control.Text()));
  m_text.setText(text);
  setAccessibleName(text);
}

}  // namespace dayvane::widgets
