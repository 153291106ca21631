// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>
#include <vector>

#include "controls/TreeView.h"
#include "linux/widgets/Icons.h"

namespace dayvane::widgets {

/// The nodes of a tree as Qt's views read them, straight from the control. While the control's nodes change the model
/// has none.
class TreeModel : public QAbstractItemModel {
 public:
  TreeModel(controls::TreeView& control, const Icons& icons);

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& /*parent*/ = {}) const override { return 1; }
  QVariant data(const QModelIndex& index, int role) const override;

  QModelIndex IndexOf(const controls::TreeNode* node) const;  ///< no index for nullptr

  /// nullptr for no index.
  controls::TreeNode* NodeAt(const QModelIndex& index) const {
    return m_changing ? nullptr : static_cast<controls::TreeNode*>(index.internalPointer());
  }

 private:
  void BeginChange();
  void EndChange();
  const std::vector<std::unique_ptr<controls::TreeNode>>& ChildrenOf(const QModelIndex& parent) const;

  controls::TreeView& m_control;
  const Icons& m_icons;
  bool m_changing = false;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
