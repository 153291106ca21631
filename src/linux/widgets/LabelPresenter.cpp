// SPDX-License-Identifier: MIT
#include "linux/widgets/LabelPresenter.h"

namespace dayvane::widgets {

QString SpokenCaption(const std::string& caption) {
  QString words = QString::fromStdString(caption).remove(QLatin1Char('&'));
  if (words.endsWith(QLatin1Char(':'))) words.chop(1);
  return words;
}

LabelPresenter::LabelPresenter(controls::Label& control, QWidget* parent)
    : QLabel(parent), m_link(control, *this, [this, &control] { setText(QString::fromStdString(control.Caption())); }) {
  setTextFormat(Qt::PlainText);
  m_link.Show();
}

}  // namespace dayvane::widgets
