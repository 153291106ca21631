// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "controls/Signal.h"
#include "windows/forms/TopWindow.h"
#include "windows/widgets/Pictures.h"

namespace dayvane::widgets {

/// A button of the task bar in the place of the tray icon: a window that is only ever minimised. Closing it does
/// nothing, for it may be the only way to the program.
class TrayStandIn : public TopWindow {
 public:
  TrayStandIn();
  ~TrayStandIn() override { m_isReady = false; }

  void SetPicture(int picture);
  void SetTip(const std::string& tip) { SetText(Handle(), tip); }

  bool IsShown() const { return IsWindowVisible(Handle()) != 0; }
  void ShowInTaskBar() { ShowWindow(Handle(), SW_SHOWMINNOACTIVE); }
  void Hide() { ShowWindow(Handle(), SW_HIDE); }

  controls::Signal<> Chosen;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool m_isReady = false;
  WindowIcons m_icons;
};

}  // namespace dayvane::widgets
