// SPDX-License-Identifier: MIT

// The Favorites list: its columns' settings and its place on the pane.

#include "base/Text.h"
#include "views/CFavorites.h"

namespace dayvane {

void CFavorites::SetSize(int width, int height) {
  Assert(width >= 1, ".SetSize: Invalid width");
  Assert(height >= 1, ".SetSize: Invalid height");
  SizePane(width, height);
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

void CFavorites::RestoreSettings() {
  const Sort sort = RestoreColumns();
  m_sortColumn = sort.column;
  m_sortOrder = sort.order;
}

}  // namespace dayvane
