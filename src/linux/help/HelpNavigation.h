// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "help/HelpFile.h"
#include "linux/widgets/RowDelegate.h"

namespace dayvane::help {

/// The left side of the help window: the table of contents, and above it a box that turns it into a list of the topics
/// that hold the words typed.
class HelpNavigation : public QWidget {
  Q_OBJECT

 public:
  HelpNavigation();

  /// Shows the contents of a file, which must outlive the next call or this object.
  void SetHelpFile(const HelpFile& file);

  /// Marks the topic shown beside the tree; raises nothing.
  void MarkTopic(const QString& name);

  void FocusSearch();

 Q_SIGNALS:
  void TopicChosen(const QString& name);

 private:
  void BuildTree();
  void SearchFor(const QString& words);
  void ShowFound(const QString& words);
  void ChooseFirstFound();

  const HelpFile* m_file = nullptr;
  QHash<QString, QTreeWidgetItem*> m_items;
  QVBoxLayout m_layout{this};
  QLineEdit m_search;
  QStackedWidget m_pages;       // before what is shown in it, which it would delete
  widgets::RowDelegate m_rows;  // before the views that it draws
  QTreeWidget m_tree;
  QListWidget m_found;
};

}  // namespace dayvane::help
