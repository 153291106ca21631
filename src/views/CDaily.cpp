#include "views/CDaily.h"

#include <cstdint>

#include "app/ReportErrors.h"
#include "base/Required.h"
#include "settings/SettingsStore.h"

namespace dayvane {

namespace {

constexpr const char* kSubtree = "Daily";
constexpr double kPastEdge = 30;  ///< twips that tree and list reach past the pane's inner edge

enum Setting : std::size_t { kFirstWidth = 0, kSortColumn = 4, kSortOrder };

const std::vector<settings::NamedText>& Defaults() {
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
  Assert(m_treeView != nullptr, "." + procedure + ": TreeView is Nothing");
  return Required(m_treeView);
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
  ShowFolder(List("Explore"), "\\EXPLORER.EXE /n,/e,/root,");
}
void CDaily::OpenFolder() const {
  ShowFolder(List("OpenFolder"), "\\EXPLORER.EXE /n,");
}

void CDaily::ShowFolder(const controls::ListView& list, const std::string& explorerArguments) const {
  const controls::ListItem* document = list.SelectedItem();
  if (document == nullptr) {
    m_application.desktop.windowing.Beep();
    return;
  }
  const std::string& path = document->Text(kPathColumn);
  m_application.desktop.shell.Run(m_application.shellServices.WindowsFolder() + explorerArguments + path);
}

void CDaily::RemoveDocument(const std::string& key) {
  List("RemoveDocument").Remove(key);
}

void CDaily::CreateRegistryKeys() {
  settings::CreateSubtree(m_application.desktop.registry, kSubtree, Defaults());
}

void CDaily::RestoreSettings() {
  controls::ListView& list = List("RestoreSettings");
  const settings::Subtree subtree(m_application.desktop.registry, kSubtree, Defaults());
  for (std::size_t column = 0; column < list.Columns().size(); ++column)
    list.SetColumnWidth(column, subtree.Number(kFirstWidth + column));
  list.SetSortKey(static_cast<std::size_t>(subtree.Number(kSortColumn)));
  list.SetSortOrder(subtree.Number(kSortOrder) == 1 ? controls::SortOrder::Descending : controls::SortOrder::Ascending);
  list.SetSorted(true);
}

void CDaily::SaveSettings() const {
  const controls::ListView& list = List("SaveSettings");
  const auto key = settings::OpenSubtree(m_application.desktop.registry, kSubtree);
  for (std::size_t column = 0; column < list.Columns().size(); ++column)
    key->SetValue(Defaults()[kFirstWidth + column].name, settings::NumberText(list.Columns()[column].width));
  // Through the stored type, so that a column that is none goes back as it came.
  key->SetValue("Sort Column", std::to_string(static_cast<std::int16_t>(list.SortKey())));
  key->SetValue("Sort Order", std::to_string(static_cast<int>(list.Order())));
}

}  // namespace dayvane
