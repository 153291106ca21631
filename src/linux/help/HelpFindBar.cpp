// SPDX-License-Identifier: MIT
#include "linux/help/HelpFindBar.h"

#include <QTextBrowser>

namespace dayvane::help {

namespace {

void SetUp(QToolButton& button, const QString& text) {
  button.setText(text);
  button.setAutoRaise(true);
}

}  // namespace

HelpFindBar::HelpFindBar(QTextBrowser& page) : m_page(page) {
  m_caption.setBuddy(&m_words);
  m_words.setAccessibleName(QStringLiteral("Find in page"));
  m_words.setClearButtonEnabled(true);
  SetUp(m_next, QStringLiteral("&Next"));
  SetUp(m_previous, QStringLiteral("P&revious"));
  SetUp(m_close, QStringLiteral("&Close"));
  LayOut();
  m_notFound.setVisible(false);
  hide();

  connect(&m_words, &QLineEdit::textChanged, this, &HelpFindBar::FindWhileTyping);
  connect(&m_words, &QLineEdit::returnPressed, this, &HelpFindBar::FindNext);
  connect(&m_next, &QToolButton::clicked, this, &HelpFindBar::FindNext);
  connect(&m_previous, &QToolButton::clicked, this, &HelpFindBar::FindPrevious);
  connect(&m_close, &QToolButton::clicked, this, &QWidget::hide);
}

void HelpFindBar::LayOut() {
  m_layout.setContentsMargins(6, 4, 6, 4);
  m_layout.addWidget(&m_caption);
  m_layout.addWidget(&m_words, 1);
  m_layout.addWidget(&m_next);
  m_layout.addWidget(&m_previous);
  m_layout.addWidget(&m_notFound, 1);
  m_layout.addWidget(&m_close);
}

void HelpFindBar::Open() {
  show();
  m_words.setFocus(Qt::ShortcutFocusReason);
  m_words.selectAll();
}

/// Looks from where the last match began, so that it grows with the word instead of jumping to the next one.
void HelpFindBar::FindWhileTyping() {
  QTextCursor cursor = m_page.textCursor();
  cursor.setPosition(cursor.selectionStart());
  m_page.setTextCursor(cursor);
  Find({});
}

void HelpFindBar::Find(QTextDocument::FindFlags flags) {
  const bool found = m_words.text().isEmpty() || FindOrWrap(flags);
  m_notFound.setVisible(!found);
}

bool HelpFindBar::FindOrWrap(QTextDocument::FindFlags flags) {
  if (m_page.find(m_words.text(), flags)) return true;
  const QTextCursor before = m_page.textCursor();
  m_page.moveCursor(flags.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
  if (m_page.find(m_words.text(), flags)) return true;
  m_page.setTextCursor(before);
  return false;
}

}  // namespace dayvane::help
