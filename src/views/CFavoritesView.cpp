// The Favorites list: its columns' settings and its place on the pane.

#include "base/Text.h"
#include "settings/SettingsStore.h"
#include "views/CFavorites.h"

namespace dayvane {

namespace {

constexpr const char* kSubtree = "Favorites";

enum Setting : std::size_t { kFirstWidth = 0, kSortColumn = 5, kSortOrder };

const std::vector<settings::NamedText>& Defaults() {
  static const std::vector<settings::NamedText> defaults{
      {"Name Width", "1440"},          {"Type Width", "1440"}, {"Path Width", "1440"}, {"Days Accessed Width", "1440"},
      {"Last Accessed Width", "1440"}, {"Sort Column", "1"},   {"Sort Order", "0"}};
  return defaults;
}

}  // namespace

void CFavorites::SetSize(int width, int height) {
  Assert(width >= 1, ".SetSize: Invalid width");
  Assert(height >= 1, ".SetSize: Invalid height");
  controls::PictureBox& container = Container("SetSize");
  container.Move(container.Left(), container.Top(), width, height);
}

void CFavorites::Container_Resize() {
  controls::ListView& list = List("Container_Resize");
  const controls::PictureBox& container = Container("Container_Resize");
  list.Move(list.Left(), list.Top(), container.ScaleWidth(), container.ScaleHeight());
}

bool CFavorites::RemoveDocument(const std::string& key) {
  Assert(!text::Trim(key).empty(), ".RemoveDocument: Key is missing");
  Assert(HasList(), ".RemoveDocument: ListView is Nothing");
  // A key that is not in the list is the usual case, not a failure to tell of.
  if (!HasList() || List("RemoveDocument").Find(key) == nullptr) return false;
  List("RemoveDocument").Remove(key);
  return true;
}

void CFavorites::CreateRegistryKeys() {
  settings::CreateSubtree(m_application.desktop.registry, kSubtree, Defaults());
}

void CFavorites::RestoreSettings() {
  controls::ListView& list = List("RestoreSettings");
  const settings::Subtree subtree(m_application.desktop.registry, kSubtree, Defaults());
  for (std::size_t column = 0; column < list.Columns().size(); ++column)
    list.SetColumnWidth(column, subtree.Number(kFirstWidth + column));
  m_sortColumn = static_cast<std::size_t>(subtree.Number(kSortColumn));
  m_sortOrder = subtree.Number(kSortOrder) == 1 ? controls::SortOrder::Descending : controls::SortOrder::Ascending;
}

void CFavorites::SaveSettings() const {
  const controls::ListView& list = List("SaveSettings");
  const auto key = settings::OpenSubtree(m_application.desktop.registry, kSubtree);
  for (std::size_t column = 0; column < list.Columns().size(); ++column)
    key->SetValue(Defaults()[kFirstWidth + column].name, settings::NumberText(list.Columns()[column].width));
  // Through the stored type, so that a column that is none goes back as it came.
  key->SetValue("Sort Column", std::to_string(static_cast<std::int16_t>(m_sortColumn)));
  key->SetValue("Sort Order", std::to_string(static_cast<int>(m_sortOrder)));
}

void CFavorites::SortAgain() {
  SortByColumn(List("SortAgain"), m_sortColumn, m_sortOrder);
}

}  // namespace dayvane
