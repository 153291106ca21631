// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <optional>
#include <vector>

#include "linux/forms/FormPresenter.h"
#include "linux/forms/PaneSplitter.h"
#include "linux/widgets/CalendarPresenter.h"
#include "linux/widgets/Icons.h"
#include "linux/widgets/ListPresenter.h"
#include "linux/widgets/MenuPresenter.h"
#include "linux/widgets/PanePresenter.h"
#include "linux/widgets/StatusBarPresenter.h"
#include "linux/widgets/TimerPresenter.h"
#include "linux/widgets/ToolbarPresenter.h"
#include "linux/widgets/TreePresenter.h"
#include "platform/DateConventions.h"

namespace dayvane {
class FMainControls;
}

namespace dayvane::widgets {

/// The main window: the pictures of all its controls, and the places that those have by design. The controls must
/// outlive it.
class MainWindow : public QMainWindow {
 public:
  MainWindow(FMainControls& main, const Icons& icons, const platform::DateConventions& dates);

  FormPresenter& Presenter() { return m_form; }

 protected:
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void BuildClient();
  void BuildDailyPane();
  void BuildMenusAndToolbar();
  void BuildStatus();
  void NameForScreenReaders();
  void Design();
  void DesignAnew();  ///< for another style or font
  void DesignDailyPane();
  int HeadingHeight() const;
  void SplitDailyPane(int left);
  void FillDailyPane();
  void DesignForm();
  void LayOut();
  void ShowHeading();
  void ShowSuspended();
  void FocusWhenViewChanges();
  void FocusList() { (m_showsFavorites ? m_favoritesList : m_dailyList).setFocus(); }  ///< of the view that is shown

  FMainControls& m_main;
  MenuPresenter m_fileMenu;
  MenuPresenter m_viewMenu;
  MenuPresenter m_toolsMenu;
  MenuPresenter m_helpMenu;
  ToolbarPresenter m_toolbar;
  QWidget m_frame;  ///< the room around the client area
  QWidget m_client;
  PanePresenter m_daily;
  PanePresenter m_favorites;
  CalendarPresenter m_calendar;
  TreePresenter m_tree;
  PaneSplitter m_splitter;
  int m_split = 0;   ///< logical pixels; where the user dragged the splitter
  QLabel m_heading;  ///< which day, month or year the list beside the tree is of
  ListPresenter m_dailyList;
  ListPresenter m_favoritesList;
  StatusBarPresenter m_statusBar;
  QLabel m_suspended;  ///< in the status bar, while capture is suspended
  Placement m_placement{m_client};
  controls::Deferred m_deferred;
  bool m_showsFavorites = false;
  std::optional<bool> m_showsSuspended;
  TimerPresenter m_timer;
  FormPresenter m_form;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
