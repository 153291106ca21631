#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "app/Application.h"
#include "app/CWaitCursor.h"
#include "controls/Calendar.h"
#include "controls/Form.h"
#include "controls/ImageList.h"
#include "controls/ListView.h"
#include "controls/Menu.h"
#include "controls/SimpleControls.h"
#include "controls/TreeView.h"

namespace dayvane {

class CCalendar;
class CDaily;
class CFavorites;
class CRepository;
class CShortcut;

/// The program's only main window: its controls and its procedures. The procedures of capture and of the views lie in
/// the rooms of their concern (capture/FMainCapture.cpp, views/FMain*.cpp); they are short, and what can be said
/// without a window is a class or function of its room. A desktop presents the controls and calls their events.
class FMain {
 public:
  FMain(Application& application, CRepository& repository);
  FMain(const FMain&) = delete;
  FMain& operator=(const FMain&) = delete;
  ~FMain();

  static constexpr const char* kName = "FMain";

  /// The load handler: builds the whole working state and starts the capture timer.
  void Form_Load();

  // Capture.
  void tmrMain_Timer();
  void PollRecentFolder();
  void GetShortcuts();
  void ProcessShortcut(CShortcut* shortcut);

  // The Daily view.
  void RefreshDaily();
  void LoadDailyTreeViewFolder(const std::string& folder, int level);
  void SelectDate(const Date& date);
  void LoadDailyListView(const controls::TreeNode* node);
  int DailyImageListIndex(const std::string& shortcutFileName, const std::string& targetFileName);

  // The Favorites view.
  void RefreshFavorites();

  /// Ends the wait cursor, if one is given, and shows the item count of the active view.
  void RefreshStatusBar(std::unique_ptr<CWaitCursor> waitCursor);

  CFavorites* Favorites() const { return m_oFavorites.get(); }

  // The window and its controls.
  controls::Form form;
  controls::Timer tmrMain;
  controls::SystemTray tryMain;
  controls::StatusBar sbrMain;
  controls::PictureBox picDaily;      ///< pane of tree, calendar and list
  controls::PictureBox picFavorites;  ///< pane of the favorites
  controls::TreeView tvwMain;
  controls::Calendar calMain;
  controls::ListView lvwDaily;
  controls::ListView lvwFavorites;
  controls::ImageList imlMain;   ///< one picture per level of the tree
  controls::ImageList imlLarge;  ///< large icons of both lists; image 1 is the default document
  controls::ImageList imlSmall;

 private:
  class Impl;

  std::unique_ptr<CWaitCursor> ShowWait();
  bool IsNewFavorite() const;

  Application& m_application;
  CRepository& m_repository;
  std::unique_ptr<CCalendar> m_oCalendar;
  std::unique_ptr<CDaily> m_oDaily;
  std::unique_ptr<CFavorites> m_oFavorites;
};

}  // namespace dayvane
