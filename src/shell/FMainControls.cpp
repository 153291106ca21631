// SPDX-License-Identifier: MIT
#include "shell/FMainControls.h"

#include <span>
#include <vector>

namespace dayvane {

namespace {

using controls::Menu;

static_assert(kFileCaptions.size() == kFileExit + 1 && kViewCaptions.size() == kViewOptions + 1 &&
              kArrangeCaptions.size() == kArrangeAuto + 1 && kToolsCaptions.size() == kToolsRebuildFavorites + 1 &&
              kHelpCaptions.size() == kHelpAbout + 1 && kTreeViewCaptions.size() == kTreeViewPurge + 1 &&
              kTrayCaptions.size() == kTrayExit + 1 && kListViewCaptions.size() == kListViewArrangeIcons + 1 &&
              kStyleCaptions.size() == kStyleDetails + 1);

struct Submenu {
  int item;
  Menu* menu;
};

std::vector<Menu::Entry> Entries(std::span<const char* const> captions, std::initializer_list<Submenu> submenus = {}) {
  std::vector<Menu::Entry> entries;
  for (const char* caption : captions) entries.push_back({caption});
  for (const Submenu& submenu : submenus) entries[static_cast<std::size_t>(submenu.item)].submenu = submenu.menu;
  return entries;
}

controls::Picture ResourcePicture(int resource) {
  return {{}, resource};
}

}  // namespace

FMainControls::FMainControls()
    : mnuFilePopup("&Dayvane", Entries(kFileCaptions)),
      mnuViewArrangePopup("Arrange &Icons", Entries(kArrangeCaptions)),
      mnuViewPopup("&View", Entries(kViewCaptions, {{kViewArrangeIcons, &mnuViewArrangePopup}})),
      mnuToolsPopup("&Tools", Entries(kToolsCaptions)),
      mnuHelpPopup("&Help", Entries(kHelpCaptions)),
      mnuTreeViewPopup("Tree View", Entries(kTreeViewCaptions)),
      mnuSysTrayPopup("Tray", Entries(kTrayCaptions)),
      mnuArrangeViewPopup("&View", Entries(kStyleCaptions)),
      mnuArrangeIconsPopup("Arrange &Icons", Entries(kArrangeCaptions)),
      mnuListViewPopup("ListView", Entries(kListViewCaptions, {{kListViewView, &mnuArrangeViewPopup},
                                                               {kListViewArrangeIcons, &mnuArrangeIconsPopup}})) {
  picFavorites.SetVisible(false);  // One pane at a time, also when the settings name no view that exists.
  BuildLists();
  for (const ToolbarRow& row : kToolbarRows) sftToolbar[row.button].SetToolTipText(row.tip);
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

}  // namespace dayvane
