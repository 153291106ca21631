// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

#include "controls/Keys.h"
#include "resources/MHelpConstants.h"
#include "resources/MResourceConstants.h"

/// The commands of the main window: what stands in its menus and on its toolbar, once for every desktop. An enumerator
/// is the index that the event of its menu or button carries; separators have one too.
namespace dayvane {

enum FileItem : int { kFileSuspend, kFileResume, kFileHide, kFileSeparator, kFileExit };
inline constexpr std::array kFileCaptions{"S&uspend", "&Resume", "&Hide", "-", "E&xit"};

enum ViewItem : int {
  kViewDaily,
  kViewFavorites,
  kViewDesktop,  ///< no action
  kViewSeparator,
  kViewLargeIcons,  ///< from here in the order of the list styles
  kViewSmallIcons,
  kViewList,
  kViewDetails,
  kViewSeparator2,
  kViewArrangeIcons,
  kViewSeparator3,
  kViewOptions
};
inline constexpr std::array kViewCaptions{
    "D&aily",   "&Favorites", "D&esktop",       "-", "Lar&ge Icons", "S&mall Icons", "&List",
    "&Details", "-",          "Arrange &Icons", "-", "&Options"};

/// Of the View menu's submenu and of the lists' context menu.
enum ArrangeItem : int { kArrangeByName, kArrangeByType, kArrangeSeparator, kArrangeAuto };
inline constexpr std::array kArrangeCaptions{"by &Name", "by &Type", "-", "&Auto Arrange"};

enum ToolsItem : int {
  kToolsFind,
  kToolsSeparator,
  kToolsExplore,
  kToolsOpenFolder,
  kToolsSeparator2,
  kToolsRebuildFavorites
};
inline constexpr std::array kToolsCaptions{"&Find...", "-", "&Explore", "&Open", "-", "&Rebuild Favorites"};

enum HelpItem : int { kHelpTopics, kHelpSeparator, kHelpKorvathOnline, kHelpSeparator2, kHelpAbout };
inline constexpr std::array kHelpCaptions{"&Dayvane Help Topics", "-", "&Korvath Online", "-", "&About Dayvane"};

enum TreeViewItem : int { kTreeViewPurge };
inline constexpr std::array kTreeViewCaptions{"&Purge"};

enum TrayItem : int {
  kTrayShow,
  kTrayHide,
  kTraySuspend,
  kTrayResume,
  kTraySeparator,
  kTrayAbout,
  kTraySeparator2,
  kTrayExit
};
inline constexpr std::array kTrayCaptions{"&Show", "&Hide", "S&uspend", "&Resume", "-", "&About Dayvane", "-", "E&xit"};

enum ListViewItem : int {
  kListViewOpen,
  kListViewSeparator,
  kListViewView,
  kListViewSeparator2,
  kListViewArrangeIcons
};
inline constexpr std::array kListViewCaptions{"&Open", "-", "&View", "-", "Arrange &Icons"};

/// The context menu's submenu of list styles, in their order.
enum StyleItem : int { kStyleLargeIcons, kStyleSmallIcons, kStyleList, kStyleDetails };
inline constexpr std::array kStyleCaptions{"Lar&ge Icons", "S&mall Icons", "&List", "&Details"};

/// Keys that everyone tries, for entries of the File and the View menu.
struct CommandKey {
  int item;
  int key;
  int modifiers;
};
inline constexpr std::array kFileKeys{CommandKey{kFileHide, 'W', controls::kCtrlMask},
                                      CommandKey{kFileExit, 'Q', controls::kCtrlMask}};
inline constexpr std::array kViewKeys{CommandKey{kViewDaily, '1', controls::kCtrlMask},
                                      CommandKey{kViewFavorites, '2', controls::kCtrlMask}};
inline constexpr int kWindowHelpKey = controls::kKeyF1;  ///< presses kHelpButton

enum ToolbarButton : std::size_t {
  kDailyButton,
  kFavoritesButton,
  kBlankButton,  ///< no action, not shown
  kExploreButton,
  kOpenFolderButton,
  kFindButton,
  kLargeIconsButton,  ///< from here in the order of the list styles
  kSmallIconsButton,
  kListButton,
  kDetailsButton,
  kHelpButton,
  kWhatsThisButton
};

/// One button of the toolbar.
struct ToolbarRow {
  ToolbarButton button;
  const char* tip;  ///< empty for a button that is not shown
  HelpContextId help;
  PictureId picture;
  int group;  ///< there is room between the groups
};
inline constexpr std::array kToolbarRows{
    ToolbarRow{kDailyButton, "Daily View", kHelpDailyViewButton, kDailyViewPicture, 0},
    ToolbarRow{kFavoritesButton, "Favorites View", kHelpFavoritesViewButton, kFavoritesViewPicture, 0},
    ToolbarRow{kBlankButton, "", kNoHelp, kNoPicture, 0},
    ToolbarRow{kExploreButton, "Explore Folder", kHelpExploreFolderButton, kExploreFolderPicture, 1},
    ToolbarRow{kOpenFolderButton, "Open Folder", kHelpOpenFolderButton, kOpenFolderPicture, 1},
    ToolbarRow{kFindButton, "Find Document", kNoHelp, kFindDocumentPicture, 1},
    ToolbarRow{kLargeIconsButton, "Large Icon View", kHelpLargeIconViewButton, kLargeIconViewPicture, 2},
    ToolbarRow{kSmallIconsButton, "Small Icon View", kHelpSmallIconViewButton, kSmallIconViewPicture, 2},
    ToolbarRow{kListButton, "List View", kHelpListViewButton, kListViewPicture, 2},
    ToolbarRow{kDetailsButton, "Detail View", kHelpDetailViewButton, kDetailViewPicture, 2},
    ToolbarRow{kHelpButton, "Main Window Help", kHelpMainWindowHelpButton, kMainWindowHelpPicture, 3},
    ToolbarRow{kWhatsThisButton, "What's This Help", kNoHelp, kWhatsThisHelpPicture, 3}};
inline constexpr std::size_t kToolbarButtons = kToolbarRows.size();

}  // namespace dayvane
