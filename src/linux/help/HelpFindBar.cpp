// SPDX-License-Identifier: MIT
#include "linux/help/HelpFindBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>
#include <QToolButton>

namespace dayvane::help {

namespace {

QToolButton* Button(QWidget& bar, const QString& text) {
  auto* button = new QToolButton(&bar);
  button->setText(text);
  button->setAutoRaise(true);
  return button;
}

}  // namespace

HelpFindBar::HelpFindBar(QTextBrowser& page, QWidget* parent)
    : QWidget(parent), m_page(page), m_words(new QLineEdit(this)), m_notFound(new QLabel(tr("Not found"), this)) {
  auto* caption = new QLabel(tr("Find in &page:"), this);
  caption->setBuddy(m_words);
  m_words->setAccessibleName(tr("Find in page"));
  m_words->setClearButtonEnabled(true);
  auto* next = Button(*this, tr("&Next"));
  auto* previous = Button(*this, tr("P&revious"));
  auto* close = Button(*this, tr("&Close"));

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(6, 4, 6, 4);
  layout->addWidget(caption);
  layout->addWidget(m_words, 1);
  layout->addWidget(next);
  layout->addWidget(previous);
  layout->addWidget(m_notFound, 1);
  layout->addWidget(close);
  m_notFound->setVisible(false);
  hide();

  connect(m_words, &QLineEdit::textChanged, this, &HelpFindBar::FindWhileTyping);
  connect(m_words, &QLineEdit::returnPressed, this, &HelpFindBar::FindNext);
  connect(next, &QToolButton::clicked, this, &HelpFindBar::FindNext);
  connect(previous, &QToolButton::clicked, this, &HelpFindBar::FindPrevious);
  connect(close, &QToolButton::clicked, this, &QWidget::hide);
}

void HelpFindBar::Open() {
  show();
  m_words->setFocus(Qt::ShortcutFocusReason);
  m_words->selectAll();
}

void HelpFindBar::FindNext() {
  Find({});
}

void HelpFindBar::FindPrevious() {
  Find(QTextDocument::FindBackward);
}

/// Looks from where the last match began, so that it grows with the word instead of jumping to the next one.
void HelpFindBar::FindWhileTyping() {
  QTextCursor cursor = m_page.textCursor();
  cursor.setPosition(cursor.selectionStart());
  m_page.setTextCursor(cursor);
  Find({});
}

void HelpFindBar::Find(QTextDocument::FindFlags flags) {
  const bool found = m_words->text().isEmpty() || FindOrWrap(flags);
  m_notFound->setVisible(!found);
}

bool HelpFindBar::FindOrWrap(QTextDocument::FindFlags flags) {
  if (m_page.find(m_words->text(), flags)) return true;
  const QTextCursor before = m_page.textCursor();
  m_page.moveCursor(flags.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
  if (m_page.find(m_words->text(), flags)) return true;
  m_page.setTextCursor(before);
  return false;
}

}  // namespace dayvane::help
