// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <vector>

#include "controls/Deferred.h"
#include "controls/Form.h"
#include "controls/SimpleControls.h"
#include "windows/tray/WayBack.h"
#include "windows/widgets/LateShow.h"

namespace dayvane::widgets {

/// Shows the tray icon; its menu is the program's, which hears of every click. Without a tray there is another way back
/// to a hidden main form.
class TrayPresenter {
 public:
  /// `patience` is the WayBack's.
  TrayPresenter(controls::SystemTray& control, controls::Form& form, TrayIcon::Shell shell = {},
                std::chrono::milliseconds patience = std::chrono::seconds(3));

  bool HasIcon() const { return m_icon.IsThere(); }
  TrayIcon& TheIcon() { return m_icon; }
  TrayStandIn& StandIn() { return m_wayBack.StandIn(); }

  /// What a click on the icon does. A command from outside the window: an open box or dialog is answered first.
  void Activate(int button);

 private:
  void Show();
  void ShowPicture();

  controls::SystemTray& m_control;
  controls::Form& m_form;
  TrayIcon m_icon;
  WayBack m_wayBack;
  int m_shownPicture = 0;
  controls::Deferred m_deferred;
  LateShow m_late{[this] { ShowPicture(); }};
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
