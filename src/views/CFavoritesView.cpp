// SPDX-License-Identifier: MIT

// The Favorites list: its columns' settings and its place on the pane.

#include "base/Text.h"
#include "settings/SettingsStore.h"
#include "views/CFavorites.h"

namespace dayvane {

namespace {

constexpr const char* kFavoritesSubtree = "Favorites";

const std::vector<settings::NamedText>& FavoritesDefaults() {
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
  // A key that is not in the list is the usual case, not a failure.
  if (!HasList() || List("RemoveDocument").Find(key) == nullptr) return false;
  List("RemoveDocument").Remove(key);
  return true;
}

void CFavorites::CreateRegistryKeys() {
  settings::CreateSubtree(m_application.desktop.registry, kFavoritesSubtree, FavoritesDefaults());
}

void CFavorites::RestoreSettings() {
  const Sort sort = RestoreColumns(kFavoritesSubtree, FavoritesDefaults());
  m_sortColumn = sort.column;
  m_sortOrder = sort.order;
}

void CFavorites::SaveSettings() const {
  SaveColumns(kFavoritesSubtree, FavoritesDefaults(), {m_sortColumn, m_sortOrder});
}

void CFavorites::SortAgain() {
  SortByColumn(List("SortAgain"), m_sortColumn, m_sortOrder);
}

}  // namespace dayvane
