// SPDX-License-Identifier: MIT
#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTextDocument>
#include <QToolButton>

class QTextBrowser;

namespace dayvane::help {

/// The bar below a page that finds words in it.
class HelpFindBar : public QWidget {
  Q_OBJECT

 public:
  /// The page must outlive the bar.
  explicit HelpFindBar(QTextBrowser& page);

  /// Shows the bar, ready to type.
  void Open();

  void FindNext() { Find({}); }
  void FindPrevious() { Find(QTextDocument::FindBackward); }

 private:
  void LayOut();
  void FindWhileTyping();
  void Find(QTextDocument::FindFlags flags);
  bool FindOrWrap(QTextDocument::FindFlags flags);

  QTextBrowser& m_page;
  QHBoxLayout m_layout{this};
  QLabel m_caption{QStringLiteral("Find in &page:")};
  QLineEdit m_words;
  QToolButton m_next;
  QToolButton m_previous;
  QLabel m_notFound{QStringLiteral("Not found")};
  QToolButton m_close;
};

}  // namespace dayvane::help
