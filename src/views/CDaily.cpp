// SPDX-License-Identifier: MIT
#include "views/CDaily.h"

#include "app/ReportErrors.h"

namespace dayvane {

namespace {

constexpr double kPastEdge = 30;  ///< twips that tree and list reach past the pane's inner edge

}  // namespace

void CDaily::SetControls(controls::TreeView* treeView, controls::ListView* listView, controls::PictureBox* container) {
  SetListControls(listView, container);
  m_treeView = treeView;
  m_nodeClick = controls::Connection();
  if (treeView == nullptr) return;
  m_nodeClick = treeView->NodeClick.ConnectScoped([this](controls::TreeNode& node) {
    ReportErrors(m_application, kProcessingSelection, ClassName, "TreeView_NodeClick",
                 [&] { TreeViewNodeClick.Raise(node); });
  });
}

void CDaily::Container_Resize() {
  controls::ListView& list = List("Container_Resize");
  controls::TreeView& tree = Tree("Container_Resize");
  const controls::PictureBox& container = Container("Container_Resize");
  const double width = container.ScaleWidth();
  const double height = container.ScaleHeight();
  tree.Move(tree.Left(), tree.Top(), tree.Width(), height - tree.Top() + kPastEdge);
  list.Move(list.Left(), list.Top(), width - list.Left() + kPastEdge, height + kPastEdge);
}

void CDaily::ShowFolder(const controls::ListView& list, const std::string& explorerArguments) const {
  const controls::ListItem* document = list.SelectedItem();
  if (document == nullptr) {
    m_application.desktop.windowing.Beep();
    return;
  }
  const std::string& path = document->Text(kPathColumn);
  m_application.shellServices.RunExplorer(explorerArguments + path);
}

void CDaily::RestoreSettings() {
  controls::ListView& list = List("RestoreSettings");
  const Sort sort = RestoreColumns();
  list.SetSortKey(sort.column);
  list.SetSortOrder(sort.order);
  list.SetSorted(true);
}

void CDaily::SaveSettings() const {
  const controls::ListView& list = List("SaveSettings");
  SaveColumns({list.SortKey(), list.Order()});
}

}  // namespace dayvane
