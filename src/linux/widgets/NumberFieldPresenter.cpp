// SPDX-License-Identifier: MIT
#include "linux/widgets/NumberFieldPresenter.h"

#include <QAccessible>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <algorithm>
#include <cstdlib>

namespace dayvane::widgets {

namespace {

constexpr int kBackspace = 8;
constexpr int kUsualDigits = 8;

}  // namespace

NumberFieldPresenter::NumberFieldPresenter(controls::TextBox& text, controls::UpDown& arrows, QWidget* parent)
    : QAbstractSpinBox(parent), m_text(text), m_arrows(arrows), m_link(text, *this, [this] { ShowText(); }) {
  connect(lineEdit(), &QLineEdit::textChanged, this, [this](const QString& now) { m_text.SetText(now.toStdString()); });
  m_selectionWanted = text.SelectionWanted.ConnectScoped([this] { ShowSelection(); });
  m_link.Show();
}

QSize NumberFieldPresenter::sizeHint() const {
  QStyleOptionSpinBox option;
  initStyleOption(&option);
  const int digits = fontMetrics().horizontalAdvance(QString(kUsualDigits, QLatin1Char('0')));
  return style()->sizeFromContents(QStyle::CT_SpinBox, &option, {digits, lineEdit()->sizeHint().height()}, this);
}

void NumberFieldPresenter::stepBy(int steps) {
  controls::Signal<>& click = steps > 0 ? m_arrows.UpClick : m_arrows.DownClick;
  for (int i = 0; i < std::abs(steps); ++i) {
    const std::string before = m_text.Text();
    click.Raise();
    if (m_text.Text() == before) return;  // the end is reached: one beep, not one for every step
  }
}

void NumberFieldPresenter::focusInEvent(QFocusEvent* event) {
  QAbstractSpinBox::focusInEvent(event);
  m_text.GotFocus.Raise();
}

void NumberFieldPresenter::keyPressEvent(QKeyEvent* event) {
  const bool isCommand = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  if (isCommand || Types(event->text())) QAbstractSpinBox::keyPressEvent(event);
}

void NumberFieldPresenter::keyReleaseEvent(QKeyEvent* event) {
  QAbstractSpinBox::keyReleaseEvent(event);
  event->ignore();  // or the dialog would not get the keys that it handles itself
}

bool NumberFieldPresenter::event(QEvent* event) {
  const bool composed = event->type() == QEvent::InputMethod;
  if (composed && !Types(static_cast<QInputMethodEvent*>(event)->commitString())) return true;
  return QAbstractSpinBox::event(event);
}

bool NumberFieldPresenter::Types(const QString& typed) {
  // Keys without a character of their own, such as Enter, are the dialog's.
  return std::all_of(typed.begin(), typed.end(), [this](QChar character) {
    return (!character.isPrint() && character.unicode() != kBackspace) || m_text.Type(character.unicode());
  });
}

void NumberFieldPresenter::ShowText() {
  const QString shown = QString::fromStdString(m_text.Text());
  if (shown == text()) return;
  lineEdit()->setText(shown);
  QAccessibleValueChangeEvent changed(this, Value());
  QAccessible::updateAccessibility(&changed);
}

void NumberFieldPresenter::ShowSelection() {
  lineEdit()->setSelection(m_text.SelStart(), m_text.SelLength());
}

}  // namespace dayvane::widgets
