// SPDX-License-Identifier: MIT
#pragma once

#include <QItemSelectionModel>
#include <QTreeView>
#include <set>
#include <string>

#include "controls/Deferred.h"
#include "controls/TreeView.h"
#include "linux/widgets/ClassicView.h"
#include "linux/widgets/ControlLink.h"
#include "linux/widgets/RowDelegate.h"
#include "linux/widgets/ScrollMemory.h"
#include "linux/widgets/TreeModel.h"

namespace dayvane::widgets {

/// Shows a tree. Nodes that the user opened are open again after the tree was filled anew, as far as their keys are
/// still there. Positions that it tells the control are those in the tree's container, where a menu is popped up.
class TreePresenter : public ClassicView<QTreeView> {
 public:
  TreePresenter(controls::TreeView& control, const Icons& icons, QWidget* parent = nullptr);
  ~TreePresenter() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void SetUpView();
  void ListenToUser();

  void ShowSelection();
  void ScrollToSelection();
  void RememberScroll();
  void RestoreContents();
  void OpenRoots();
  void OpenAgain();
  void OpenPathTo(const QModelIndex& index);

  void SelectionMoved();
  void Click(const QModelIndex& index);
  void RaiseMouseUp(int button, QPoint at);

  controls::TreeView& m_control;
  TreeModel m_model;
  QItemSelectionModel m_selection;
  RowDelegate m_rowDelegate;
  ScrollMemory m_scroll;
  std::set<std::string> m_open;        ///< keys of open nodes
  std::set<std::string> m_knownRoots;  ///< roots that were opened once
  bool m_showing = false;              ///< what changes in the widget is not the user's doing
  controls::Deferred m_deferred;
  ControlLink m_link;
  controls::Connection m_selectionChanged;
};

}  // namespace dayvane::widgets
