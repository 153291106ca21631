// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <chrono>
#include <vector>

#include "controls/Form.h"
#include "linux/tray/LauncherWatch.h"
#include "linux/tray/TrayStandIn.h"
#include "linux/tray/TrayWatch.h"

namespace dayvane::widgets {

/// How the user gets back to a hidden main window while there is no tray: by the desktop's launcher, who is told so
/// once, else by a stand-in window with the tray's commands. A tray that comes makes an end of either.
class WayBack {
 public:
  /// `patience`: how long a tray may be gone before something takes its place, for a panel that only starts anew or
  /// after the program. There is no wait when the user hides the window where there was no tray all the time.
  WayBack(controls::Form& form, TrayWatch& tray, LauncherWatch& launcher, const QList<QAction*>& commands,
          std::chrono::milliseconds patience);

  /// The tray or the form has changed.
  void Follow();

  TrayStandIn& StandIn() { return m_standIn; }

 private:
  void Offer();
  void ShowStandIn();

  controls::Form& m_form;
  TrayWatch& m_tray;
  LauncherWatch& m_launcher;
  TrayStandIn m_standIn;
  QTimer m_patience;
  bool m_isOffered = false;  ///< one of the two
  bool m_wasShownWithoutTray = false;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
