// SPDX-License-Identifier: MIT
#include "shell/FMainControls.h"

#include <span>
#include <vector>

namespace dayvane {

namespace {

using controls::Alignment;
using controls::ColumnKind;
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
  MarkMenus();
  for (const CommandKey& key : kFileKeys) mnuFilePopup[key.item].SetKey({key.key, key.modifiers});
  for (const CommandKey& key : kViewKeys) mnuViewPopup[key.item].SetKey({key.key, key.modifiers});
  for (const ToolbarRow& row : kToolbarRows) sftToolbar[row.button].SetToolTipText(row.tip);
}

void FMainControls::MarkMenus() {
  using controls::MenuMark;
  for (const int view : {kViewDaily, kViewFavorites}) mnuViewPopup[view].SetMark(MenuMark::Choice);
  for (int style = kStyleLargeIcons; style <= kStyleDetails; ++style) {
    mnuViewPopup[kViewLargeIcons + style].SetMark(MenuMark::Choice);
    mnuArrangeViewPopup[style].SetMark(MenuMark::Choice);
  }
  for (Menu* menu : {&mnuViewArrangePopup, &mnuArrangeIconsPopup}) (*menu)[kArrangeAuto].SetMark(MenuMark::Check);
}

void FMainControls::BuildLists() {
  lvwDaily.SetName("lvwDaily");
  lvwDaily.SetColumns({{"Name", ColumnKind::Name}, {"Type"}, {"Path", ColumnKind::Path}, {"Modified"}});
  lvwFavorites.SetName("lvwFavorites");
  lvwFavorites.SetColumns({{"Name", ColumnKind::Name},
                           {"Type"},
                           {"Path", ColumnKind::Path},
                           {"Days Accessed", ColumnKind::Short, Alignment::Right},
                           {"Last Accessed"}});
  for (const int level : {kRepositoryPicture, kYearPicture, kMonthPicture, kDayPicture})
    imlMain.Add(ResourcePicture(level));
  for (controls::ImageList* images : {&imlLarge, &imlSmall, &imlFavoritesLarge, &imlFavoritesSmall})
    images->Add(ResourcePicture(kDefaultDocumentPicture));
  lvwDaily.SetImages(&imlLarge, &imlSmall);
  lvwFavorites.SetImages(&imlFavoritesLarge, &imlFavoritesSmall);
}

}  // namespace dayvane
