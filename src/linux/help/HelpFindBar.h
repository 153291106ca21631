// SPDX-License-Identifier: MIT
#pragma once

#include <QTextDocument>
#include <QWidget>

class QLabel;
class QLineEdit;
class QTextBrowser;

namespace dayvane::help {

/// The bar below a page that finds words in it.
class HelpFindBar : public QWidget {
  Q_OBJECT

 public:
  /// The page must outlive the bar.
  explicit HelpFindBar(QTextBrowser& page, QWidget* parent = nullptr);

  /// Shows the bar, ready to type.
  void Open();

  void FindNext();
  void FindPrevious();

 private:
  void FindWhileTyping();
  void Find(QTextDocument::FindFlags flags);
  bool FindOrWrap(QTextDocument::FindFlags flags);

  QTextBrowser& m_page;
  QLineEdit* m_words;
  QLabel* m_notFound;
};

}  // namespace dayvane::help
