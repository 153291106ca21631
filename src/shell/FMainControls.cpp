// SPDX-License-Identifier: MIT
#include "shell/FMainControls.h"

#include <span>
#include <vector>

namespace dayvane {

namespace {

using controls::Menu;

template <class Rows>
constexpr bool AreInOrder(const Rows& rows) {
  int next = 0;
  for (const MenuRow& row : rows)
    if (row.item != next++) return false;
  return true;
}
static_assert(AreInOrder(kFileRows) && AreInOrder(kViewRows) && AreInOrder(kArrangeRows) && AreInOrder(kToolsRows) &&
              AreInOrder(kHelpRows) && AreInOrder(kTreeViewRows) && AreInOrder(kTrayRows) &&
              AreInOrder(kListViewRows) && AreInOrder(kStyleRows));

struct Submenu {
  int item;
  Menu* menu;
};

std::vector<Menu::Entry> Entries(std::span<const MenuRow> rows, std::initializer_list<Submenu> submenus = {}) {
  std::vector<Menu::Entry> entries;
  for (const MenuRow& row : rows) entries.push_back({row.caption});
  for (const Submenu& submenu : submenus) entries[static_cast<std::size_t>(submenu.item)].submenu = submenu.menu;
  return entries;
}

controls::Picture ResourcePicture(int resource) {
  return {{}, resource};
}

}  // namespace

FMainControls::FMainControls()
    : mnuFilePopup("&Dayvane", Entries(kFileRows)),
      mnuViewArrangePopup("Arrange &Icons", Entries(kArrangeRows)),
      mnuViewPopup("&View", Entries(kViewRows, {{kViewArrangeIcons, &mnuViewArrangePopup}})),
      mnuToolsPopup("&Tools", Entries(kToolsRows)),
      mnuHelpPopup("&Help", Entries(kHelpRows)),
      mnuTreeViewPopup("Tree View", Entries(kTreeViewRows)),
      mnuSysTrayPopup("Tray", Entries(kTrayRows)),
      mnuArrangeViewPopup("&View", Entries(kStyleRows)),
      mnuArrangeIconsPopup("Arrange &Icons", Entries(kArrangeRows)),
      mnuListViewPopup("ListView", Entries(kListViewRows, {{kListViewView, &mnuArrangeViewPopup},
                                                           {kListViewArrangeIcons, &mnuArrangeIconsPopup}})) {
  picFavorites.SetVisible(false);  // One pane at a time, also when the settings name no view that exists.
  BuildLists();
  BuildToolbar();
}

void FMainControls::BuildLists() {
  lvwDaily.SetName("lvwDaily");
  lvwDaily.SetColumns({{"Name"}, {"Type"}, {"Path"}, {"Modified"}});
  lvwFavorites.SetName("lvwFavorites");
  lvwFavorites.SetColumns({{"Name"}, {"Type"}, {"Path"}, {"Days Accessed"}, {"Last Accessed"}});
  for (const int level : {kRepositoryPicture, kYearPicture, kMonthPicture, kDayPicture})
    imlMain.Add(ResourcePicture(level));
  for (controls::ImageList* images : {&imlLarge, &imlSmall, &imlFavoritesLarge, &imlFavoritesSmall})
    images->Add(ResourcePicture(kDefaultDocumentPicture));
  lvwDaily.SetImages(&imlLarge, &imlSmall);
  lvwFavorites.SetImages(&imlFavoritesLarge, &imlFavoritesSmall);
}

void FMainControls::BuildToolbar() {
  for (const ToolbarRow& row : kToolbarRows) sftToolbar[row.button].SetToolTipText(row.tip);
}

}  // namespace dayvane
