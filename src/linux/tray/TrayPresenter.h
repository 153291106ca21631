// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QSystemTrayIcon>
#include <chrono>
#include <memory>
#include <vector>

#include "controls/Deferred.h"
#include "controls/Form.h"
#include "controls/SimpleControls.h"
#include "linux/tray/TrayWatch.h"
#include "linux/tray/WayBack.h"
#include "linux/widgets/LateShow.h"
#include "linux/widgets/MenuPresenter.h"

namespace dayvane::widgets {

/// Shows the tray icon with its menu. The panel opens the menu by itself, so right clicks never reach the program;
/// the menu's default item is its first visible one. Without a tray there is another way back to a hidden main form.
/// Its Show and Hide follow the form and not the menu, which not every way of hiding the form updates: there would be
/// no way back.
class TrayPresenter {
 public:
  /// `patience` is the WayBack's.
  TrayPresenter(controls::SystemTray& control, controls::Menu& menu, controls::Form& form, TrayWatch& watch,
                LauncherWatch& launcher, std::chrono::milliseconds patience = std::chrono::seconds(3));

  TrayStandIn& StandIn() { return m_wayBack.StandIn(); }
  MenuPresenter& Menu() { return m_menu; }

  /// What a click on the icon does.
  void Activate(QSystemTrayIcon::ActivationReason reason);

 private:
  void Show();
  void ShowPicture();
  void ShowIcon();
  QList<QAction*> Commands();  ///< of the stand-in

  controls::SystemTray& m_control;
  controls::Form& m_form;
  TrayWatch& m_watch;
  MenuPresenter m_menu;
  QAction m_show;
  QAction m_hide;
  WayBack m_wayBack;
  std::unique_ptr<QSystemTrayIcon> m_icon;  ///< once there was a tray
  int m_shownPicture = 0;
  controls::Deferred m_deferred;
  LateShow m_late{[this] { ShowPicture(); }};
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
