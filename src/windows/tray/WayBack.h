// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <vector>

#include "controls/Form.h"
#include "windows/tray/TrayIcon.h"
#include "windows/tray/TrayStandIn.h"

namespace dayvane::widgets {

/// How the user gets back to a hidden main window while there is no tray icon: by a stand-in in the task bar. An icon
/// that comes makes an end of it.
class WayBack : private Window {
 public:
  /// `patience`: how long the icon may be gone before something takes its place, for a task bar that only starts anew
  /// or after the program. There is no wait when the user hides the window where there was no icon all the time.
  WayBack(controls::Form& form, TrayIcon& tray, std::chrono::milliseconds patience);
  ~WayBack() override { m_isReady = false; }

  /// The icon or the form has changed.
  void Follow();

  TrayStandIn& StandIn() { return m_standIn; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void Offer();

  bool m_isReady = false;
  controls::Form& m_form;
  TrayIcon& m_tray;
  TrayStandIn m_standIn;
  UINT m_patienceMilliseconds;
  bool m_isWaiting = false;
  bool m_wasShownWithoutTray = false;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
