// SPDX-License-Identifier: MIT
#include "linux/widgets/TreeModel.h"

#include "linux/files/NativePath.h"
#include "linux/widgets/DayWords.h"

namespace dayvane::widgets {

using controls::TreeNode;

TreeModel::TreeModel(controls::TreeView& control, const Icons& icons) : m_control(control), m_icons(icons) {
  m_connections.push_back(control.ContentsWillChange.ConnectScoped([this] { BeginChange(); }));
  m_connections.push_back(control.ContentsChanged.ConnectScoped([this] { EndChange(); }));
}

void TreeModel::BeginChange() {
  beginResetModel();
  m_changing = true;
}

void TreeModel::EndChange() {
  m_changing = false;
  endResetModel();
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) return {};
  return createIndex(row, column, ChildrenOf(parent)[static_cast<std::size_t>(row)].get());
}

QModelIndex TreeModel::parent(const QModelIndex& index) const {
  const TreeNode* node = NodeAt(index);
  return node == nullptr ? QModelIndex() : IndexOf(node->parent);
}

int TreeModel::rowCount(const QModelIndex& parent) const {
  return m_changing || parent.column() > 0 ? 0 : static_cast<int>(ChildrenOf(parent).size());
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
  const TreeNode* node = NodeAt(index);
  if (node == nullptr) return {};
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(files::ForReading(node->text));
    case Qt::DecorationRole:
      return m_icons.Of(m_control.Images(), node->image);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
      return node->day ? QVariant(DayWords(*node->day)) : QVariant();
    default:
      return {};
  }
}

QModelIndex TreeModel::IndexOf(const TreeNode* node) const {
  return node == nullptr || m_changing ? QModelIndex() : createIndex(static_cast<int>(node->row), 0, node);
}

const std::vector<std::unique_ptr<TreeNode>>& TreeModel::ChildrenOf(const QModelIndex& parent) const {
  const TreeNode* node = NodeAt(parent);
  return node == nullptr ? m_control.Roots() : node->children;
}

}  // namespace dayvane::widgets
