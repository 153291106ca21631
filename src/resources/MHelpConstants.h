// SPDX-License-Identifier: MIT
#pragma once

namespace dayvane {

/// Numbers under which the help file keeps its topics. Most belong to a control and are shown when the user asks
/// what it is; the window-wide ones are opened as a page. A number is part of the help file's contract: never reuse
/// one.
enum HelpContextId : int {
  kNoHelp = 0,        ///< a control without a topic
  kHelpContents = 0,  ///< the table of contents

  // The options dialog.
  kHelpFavoritesThreshold = 2,
  kHelpTimerInterval = 6,
  kHelpOptions = 11,  ///< the whole dialog
  kHelpPurgeAge = 22,

  // Toolbar buttons.
  kHelpMainWindowHelpButton = 4,
  kHelpListViewButton = 14,
  kHelpDetailViewButton = 15,
  kHelpLargeIconViewButton = 16,
  kHelpSmallIconViewButton = 17,
  kHelpFavoritesViewButton = 18,
  kHelpExploreFolderButton = 19,
  kHelpOpenFolderButton = 20,
  kHelpDailyViewButton = 21,

  // Controls of the main window.
  kHelpFavoritesList = 23,
  kHelpDailyList = 24,
  kHelpDayTree = 25,
  kHelpCalendar = 26,

  kHelpFirstRun = 27,    ///< offered by the welcome of the first run
  kHelpMainWindow = 33,  ///< the main window as a whole
};

}  // namespace dayvane
