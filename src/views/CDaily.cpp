// SPDX-License-Identifier: MIT
#include "views/CDaily.h"

#include "app/ReportErrors.h"
#include "settings/SettingsStore.h"

namespace dayvane {

namespace {

constexpr const char* kDailySubtree = "Daily";
constexpr double kPastEdge = 30;  ///< twips that tree and list reach past the pane's inner edge

const std::vector<settings::NamedText>& DailyDefaults() {
  static const std::vector<settings::NamedText> defaults{{"Name Width", "1440"}, {"Type Width", "1440"},
                                                         {"Path Width", "1440"}, {"Modified Width", "1440"},
                                                         {"Sort Column", "1"},   {"Sort Order", "0"}};
  return defaults;
}

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

controls::TreeView& CDaily::Tree(const std::string& procedure) const {
  return Demand(m_treeView, "." + procedure + ": TreeView is Nothing");
}

controls::TreeNode* CDaily::SelectedDay() const {
  return Tree("SelectedDay").SelectedItem();
}

void CDaily::SetSize(int width, int height) {
  controls::PictureBox& container = Container("SetSize");
  container.Move(container.Left(), container.Top(), width, height);
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

void CDaily::Explore() const {
  ShowFolder(List("Explore"), "/n,/e,/root,");
}
void CDaily::OpenFolder() const {
  ShowFolder(List("OpenFolder"), "/n,");
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

void CDaily::RemoveDocument(const std::string& key) {
  List("RemoveDocument").Remove(key);
}

void CDaily::CreateRegistryKeys() {
  settings::CreateSubtree(m_application.desktop.registry, kDailySubtree, DailyDefaults());
}

void CDaily::RestoreSettings() {
  controls::ListView& list = List("RestoreSettings");
  const Sort sort = RestoreColumns(kDailySubtree, DailyDefaults());
  list.SetSortKey(sort.column);
  list.SetSortOrder(sort.order);
  list.SetSorted(true);
}

void CDaily::SaveSettings() const {
  const controls::ListView& list = List("SaveSettings");
  SaveColumns(kDailySubtree, DailyDefaults(), {list.SortKey(), list.Order()});
}

}  // namespace dayvane
