// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "app/Application.h"
#include "app/Asserting.h"
#include "app/CWaitCursor.h"
#include "base/CheckedPointer.h"
#include "capture/FiledShortcuts.h"
#include "capture/NearbyDays.h"
#include "repository/CRepository.h"
#include "resources/StringTable.h"
#include "shell/FMainControls.h"
#include "views/CCalendar.h"
#include "views/CDaily.h"
#include "views/CFavorites.h"

namespace dayvane {

/// The program's only main window: the procedures behind its controls. Those of capture and of the views lie in the
/// rooms of their concern (capture/FMainCapture.cpp, views/FMain*.cpp); what can be said without a window is a class or
/// function of its room.
class FMain : public FMainControls, private Asserting {
 public:
  static constexpr const char* kName = "FMain";

  enum View : std::int16_t { kDailyView = 0, kFavoritesView = 1 };

  /// Both must outlive the window.
  FMain(Application& application, CRepository& repository);
  ~FMain();

  /// The load handler: builds the whole working state and starts the capture timer. `splashDone` is called when the
  /// splash window may go.
  void Form_Load(const std::function<void()>& splashDone = [] {});

  // Capture.
  void tmrMain_Timer();
  void PollRecentFolder();
  void GetShortcuts();
  void ProcessShortcut(CShortcut* shortcut);

  // The Daily view.
  void FindLatestDay();
  void RefreshDaily();
  void RefreshCalendar();  ///< after days came or went in the month that is shown
  void LoadDailyTreeViewFolder(const std::string& folder, int level);
  void SelectDate(const Date& date);
  void LoadDailyListView(const controls::TreeNode* node);
  int DailyImageListIndex(const std::string& shortcutFileName, const std::string& targetFileName);

  // The Favorites view.
  void RebuildFavorites();  ///< from the repository, saved at once, or a kill would bring removed links back
  void RefreshFavorites();
  int FavoritesImageListIndex(const std::string& shortcutFileName, const std::string& targetFileName);

  void PurgeDay(const controls::TreeNode* node);
  void Explore();
  void OpenFolder();

  // A document of either list.
  void OpenDocument(const controls::ListItem* item);
  void RemoveLink(const controls::ListItem* item);

  // The window. View and style are the numbers of the settings.
  void SetVisible(bool visible);
  void SetActive(bool active);
  void SetActiveView(int view);
  void SetListView(int style);
  void SetExploreOpen(bool enabled);
  void SetOptions();
  void ArrangeIcons(int index);
  void Find();
  void DisplayHelp(int context);
  void DisplayKorvathOnline();
  void DisplayAboutBox();

  /// Ends the wait cursor, if one is given, and shows the item count of the active view.
  void RefreshStatusBar(std::unique_ptr<CWaitCursor> waitCursor = nullptr);

  CFavorites* Favorites() const { return m_oFavorites.get(); }

 private:
  void ConnectControls();
  void ConnectViews();
  void SetHelpContextIDs();

  // The start-up sequence.
  void LoadResources();
  void CreateViews();
  void ReadOptions();
  void Welcome();
  void PurgeAtStart();
  bool CaptureAtStart();
  void LoadFavorites();
  void RestoreWindow();
  void RestoreViews();
  void SetTimerInterval();
  void ChangeTimerInterval();
  void StartCapture(bool hasCaptured);

  // Handlers.
  void Form_Activate();
  void Form_Resize();
  void Form_QueryUnload(bool& cancel, controls::UnloadMode mode);
  void Form_Unload();
  void m_oCalendar_DateChange(const Date& newDate);
  void m_oDaily_TreeViewNodeClick(const controls::TreeNode& node);
  void m_oDaily_ListViewDblClick(const controls::ListItem& item);
  void m_oDaily_ListViewItemClick();
  void m_oDaily_ListViewPopupMenu(double x, double y);
  void m_oFavorites_DblClick(const controls::ListItem& item) { m_oDaily_ListViewDblClick(item); }
  void m_oFavorites_ItemClick() { m_oDaily_ListViewItemClick(); }
  void m_oFavorites_PopupMenu(double x, double y) { m_oDaily_ListViewPopupMenu(x, y); }
  void tvwMain_MouseUp(int button, double x, double y);
  void picMain_Resize(std::size_t index);
  void tryMain_MouseUp(int button);
  void mnuFilePopup_Click(int index);
  void mnuViewPopup_Click(int index);
  void mnuToolsPopup_Click(int index);
  void mnuHelpPopup_Click(int index);
  void mnuTreeViewPopup_Click(int index);
  void mnuSysTrayPopup_Click(int index);
  void mnuListViewPopup_Click(int index);
  void sftToolbar_Click(std::size_t index);

  Date LatestDay() const;
  void Exit();
  void ShowSuspendOrResume(bool active) const;
  void FollowSelection();                        ///< SetExploreOpen as the list that is shown has it
  const controls::ListView* ActiveList() const;  ///< nullptr when the settings name no view that exists
  void SelectAgain(const std::string& nodeKey, const std::string& rowKey);
  bool AskToRemove(StringId before, const std::string& what, StringId after);
  void ReadShortcut(CShortcut& shortcut, const std::string& key);
  std::string DocumentOf(const std::string& filedShortcut) const;
  void PutBackIntoRecent(const CShortcut& shortcut);
  int ImageListIndex(controls::ImageList& large, controls::ImageList& small, const std::string& shortcutFileName,
                     const std::string& targetFileName);
  void SaveWindow();
  void SaveViews();
  void ShowListedDay(const controls::TreeNode* node);
  void AddDocument(const std::string& key, const CShortcut& shortcut);
  void File(CShortcut& shortcut, const std::string& destination);
  void SaveCounts();

  std::unique_ptr<CWaitCursor> ShowWait();

  Application& m_application;
  CRepository& m_repository;
  CheckedPointer<CCalendar> m_oCalendar;
  CheckedPointer<CDaily> m_oDaily;
  CheckedPointer<CFavorites> m_oFavorites;
  bool m_exiting = false;
  std::int16_t m_activeView = kDailyView;
  std::int32_t m_favoritesThreshold = 0;
  std::int32_t m_purgeAge = 0;       ///< days
  std::int32_t m_timerInterval = 0;  ///< seconds
  bool m_activatedOnce = false;
  bool m_visibleAtStart = true;
  std::string m_recentFolder;  ///< without a trailing "\"
  FiledShortcuts m_filedShortcuts;
  NearbyDays m_nearbyDays;
  bool m_documentsChanged = false;
  bool m_inTreeClick = false;  ///< the calendar is being moved because a day was clicked in the tree
  bool m_isSuspended = false;  ///< by the user, not by a poll that failed
  bool m_isRestored = false;   ///< window and views are as the settings say: before that they are not saved
};

}  // namespace dayvane
