// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

#include "controls/Calendar.h"
#include "controls/Form.h"
#include "controls/ImageList.h"
#include "controls/ListView.h"
#include "controls/Menu.h"
#include "controls/SimpleControls.h"
#include "controls/TreeView.h"
#include "shell/MCommands.h"

namespace dayvane {

class FOptions;

/// The main window as a desktop sees it: its controls, which it presents, and whose events it calls when the user acts.
/// What they do is FMain's.
class FMainControls {
 public:
  static constexpr std::size_t kToolbarStrip = 3;

  controls::Signal<FOptions&> OptionsLoaded;  ///< for presenters: the options dialog is shown next

  // The window and its controls.
  controls::Form form;
  controls::Timer tmrMain;
  controls::SystemTray tryMain;
  controls::StatusBar sbrMain;
  controls::PictureBox picDaily;      ///< pane of calendar, tree and list
  controls::PictureBox picFavorites;  ///< pane of the favorites
  controls::TreeView tvwMain;
  controls::Calendar calMain;
  controls::ListView lvwDaily;
  controls::ListView lvwFavorites;
  controls::ImageList imlMain;   ///< one picture per level of the tree
  controls::ImageList imlLarge;  ///< large icons of the Daily list; image 1 is the default document
  controls::ImageList imlSmall;
  controls::ImageList imlFavoritesLarge;
  controls::ImageList imlFavoritesSmall;
  std::array<controls::PictureBox, 4> picMain;  ///< element kToolbarStrip is the strip of the toolbar
  std::array<controls::Line, 2> linToolbar;     ///< along the toolbar strip
  std::array<controls::Button, kToolbarButtons> sftToolbar;

  // Menus. A submenu stands before the menu that it belongs to.
  controls::Menu mnuFilePopup;
  controls::Menu mnuViewArrangePopup;
  controls::Menu mnuViewPopup;
  controls::Menu mnuToolsPopup;
  controls::Menu mnuHelpPopup;
  controls::Menu mnuTreeViewPopup;
  controls::Menu mnuSysTrayPopup;
  controls::Menu mnuArrangeViewPopup;
  controls::Menu mnuArrangeIconsPopup;
  controls::Menu mnuListViewPopup;

 protected:
  FMainControls();
  ~FMainControls() = default;

 private:
  void BuildLists();
  void MarkMenus();
};

}  // namespace dayvane
