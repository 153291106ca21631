// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "platform/DateConventions.h"
#include "windows/forms/FormPresenter.h"
#include "windows/forms/PaneSplitter.h"
#include "windows/widgets/CalendarPresenter.h"
#include "windows/widgets/Icons.h"
#include "windows/widgets/ListPresenter.h"
#include "windows/widgets/MenuPresenter.h"
#include "windows/widgets/PanePresenter.h"
#include "windows/widgets/Pictures.h"
#include "windows/widgets/StatusBarPresenter.h"
#include "windows/widgets/TimerPresenter.h"
#include "windows/widgets/ToolbarPresenter.h"
#include "windows/widgets/TreePresenter.h"

namespace dayvane {
class FMainControls;
}

namespace dayvane::widgets {

/// The menus of the main window: the bar, its commands and its keys.
class MainMenu {
 public:
  explicit MainMenu(FMainControls& main);
  MainMenu(const MainMenu&) = delete;
  MainMenu& operator=(const MainMenu&) = delete;
  ~MainMenu();

  HMENU Bar() const { return m_bar.get(); }
  HACCEL Keys() const { return m_keys.get(); }

  /// What the user's choice does. Returns whether the command is one of the menus'.
  bool Choose(UINT command);

 private:
  FMainControls& m_main;
  MenuPresenter m_file;
  MenuPresenter m_view;
  MenuPresenter m_tools;
  MenuPresenter m_help;
  UINT m_helpCommand;  ///< of the key that shows the window's help
  MenuHandle m_bar;
  Accelerators m_keys;
  controls::Deferred m_deferred;
};

/// The main window: the pictures of all its controls, and the places that those have by design. The controls must
/// outlive it.
class MainWindow : public TopWindow {
 public:
  MainWindow(FMainControls& main, Icons& icons, const platform::DateConventions& dates);
  ~MainWindow() override;

  FormPresenter& Presenter() { return m_form; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void LookChanged() override;

 private:
  /// The part of the window that holds the panes.
  class Client : public Window {
   public:
    explicit Client(HWND parent)
        : Window({.className = L"Dayvane.Client",
                  .style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
                  .extendedStyle = WS_EX_CONTROLPARENT,
                  .parent = parent}) {}
  };

  void Connect();
  void NameForScreenReaders();
  void SetLooks();
  void Design();
  void DesignDailyPane();
  void DesignForm();
  int HeadingHeight() const;
  SIZE LeastSize() const;
  void SplitDailyPane(int left);
  void FillDailyPane();
  void LayOutFrame();
  void LayOut();
  void ShowHeading();
  void ShowSuspended();
  void ShowIcon();
  void FocusWhenViewChanges();
  HWND ShownList() const { return (m_showsFavorites ? m_favoritesList : m_dailyList).Handle(); }
  int Pixels(int at96) const { return CurrentLook()->Pixels(at96); }

  FMainControls& m_main;
  bool m_isReady = false;
  MainMenu m_menu;
  StatusBarPresenter m_statusBar;  // above the client, whose bottom it covers
  Client m_client;
  PanePresenter m_daily;
  PanePresenter m_favorites;
  CalendarPresenter m_calendar;
  TreePresenter m_tree;
  PaneSplitter m_splitter;
  int m_split = 0;  ///< pixels; where the user dragged the splitter
  UINT m_splitDpi;  ///< that these pixels are of
  HWND m_heading;   ///< which day, month or year the list beside the tree is of
  ListPresenter m_dailyList;
  ListPresenter m_favoritesList;
  ToolbarPresenter m_toolbar;  // after the panes, for the Tab key
  Placement m_placement;
  bool m_showsFavorites = false;
  std::optional<bool> m_showsSuspended;
  WindowIcons m_icons;
  TimerPresenter m_timer;
  FormPresenter m_form;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
