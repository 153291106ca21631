// SPDX-License-Identifier: MIT
#include "linux/help/HelpNavigation.h"

#include <QSignalBlocker>

namespace dayvane::help {

namespace {

constexpr int kTopicRole = Qt::UserRole;  ///< the topic's name, in both lists

}  // namespace

HelpNavigation::HelpNavigation() {
  m_search.setPlaceholderText(QStringLiteral("Search all topics"));
  m_search.setAccessibleName(QStringLiteral("Search all topics"));
  m_search.setClearButtonEnabled(true);
  m_tree.setAccessibleName(QStringLiteral("Contents"));
  m_tree.setHeaderHidden(true);
  m_found.setAccessibleName(QStringLiteral("Topics found"));
  m_found.setWordWrap(true);
  m_tree.setItemDelegate(&m_rows);
  m_found.setItemDelegate(&m_rows);
  m_pages.addWidget(&m_tree);
  m_pages.addWidget(&m_found);

  m_layout.setContentsMargins(6, 6, 0, 6);
  m_layout.addWidget(&m_search);
  m_layout.addWidget(&m_pages);

  connect(&m_search, &QLineEdit::textChanged, this, &HelpNavigation::SearchFor);
  connect(&m_search, &QLineEdit::returnPressed, this, &HelpNavigation::ChooseFirstFound);
  connect(&m_tree, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (item) Q_EMIT TopicChosen(item->data(0, kTopicRole).toString());
  });
  connect(&m_found, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
    const QString topic = item ? item->data(kTopicRole).toString() : QString();
    if (!topic.isEmpty()) Q_EMIT TopicChosen(topic);
  });
}

void HelpNavigation::SetHelpFile(const HelpFile& file) {
  m_file = &file;
  BuildTree();
  SearchFor(m_search.text());
}

void HelpNavigation::BuildTree() {
  const QSignalBlocker quiet(&m_tree);
  m_tree.clear();
  m_items.clear();
  std::vector<QTreeWidgetItem*> above;  // the item last added on each level
  for (const ContentsEntry& entry : m_file->Contents()) {
    const auto depth = static_cast<std::size_t>(entry.depth);
    above.resize(depth);
    const QString topic = QString::fromStdString(entry.topic);
    const QStringList title(QString::fromStdString(m_file->Find(entry.topic)->title));
    auto* item = above.empty() ? new QTreeWidgetItem(&m_tree, title) : new QTreeWidgetItem(above.back(), title);
    item->setData(0, kTopicRole, topic);
    above.push_back(item);
    m_items.insert(topic, item);
  }
}

void HelpNavigation::MarkTopic(const QString& name) {
  const QSignalBlocker quietTree(&m_tree);
  QTreeWidgetItem* item = m_items.value(name);
  m_tree.setCurrentItem(item);
  if (!item) return;
  m_tree.scrollToItem(item);
  item->setExpanded(true);
}

void HelpNavigation::FocusSearch() {
  m_search.setFocus(Qt::ShortcutFocusReason);
  m_search.selectAll();
}

void HelpNavigation::SearchFor(const QString& words) {
  const bool wanted = m_file && !words.trimmed().isEmpty();
  if (wanted) ShowFound(words);
  m_pages.setCurrentWidget(wanted ? static_cast<QWidget*>(&m_found) : &m_tree);
}

void HelpNavigation::ChooseFirstFound() {
  if (m_pages.currentWidget() != &m_found) return;
  m_found.setFocus();
  m_found.setCurrentRow(0);
}

void HelpNavigation::ShowFound(const QString& words) {
  const QSignalBlocker quiet(&m_found);
  m_found.clear();
  for (const Topic* topic : m_file->Search(words.toStdString())) {
    m_found.addItem(QString::fromStdString(topic->title));
    m_found.item(m_found.count() - 1)->setData(kTopicRole, QString::fromStdString(topic->name));
  }
  if (m_found.count() > 0) return;
  m_found.addItem(QStringLiteral("No topic holds these words."));
  m_found.item(0)->setFlags(Qt::NoItemFlags);
}

}  // namespace dayvane::help
