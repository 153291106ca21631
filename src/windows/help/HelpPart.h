// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "controls/Control.h"
#include "windows/widgets/ChildWindow.h"

namespace dayvane::help {

/// Asked of the window at the top before a part of it takes a key: wParam is the key's code. What is not 0 says that
/// the key has done its work.
inline constexpr UINT kHelpKey = WM_APP + 0x40;

struct HelpPartState {
  controls::Control state;
};

/// A box, button or list of the help windows. They belong to no form of the program's, so each has its own state.
class HelpPart : private HelpPartState, public widgets::ChildWindow {
 public:
  HelpPart(const Kind& kind, HWND parent, const widgets::SharedLook& look);

  void SetEnabled(bool enabled) { state.SetEnabled(enabled); }
  void SetVisible(bool visible) { state.SetVisible(visible); }
  bool IsVisible() const { return state.Visible(); }
  void Place(int left, int top, int width, int height) const;
  void Focus() const { SetFocus(Handle()); }
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(Handle(), message, wParam, lParam);
  }

  std::function<void(UINT code)> Commanded;  ///< the window's WM_COMMAND
  std::function<void(NMHDR& notice)> Notified;

 protected:
  void ShowControl() override {}
  std::optional<LRESULT> OnNotify(NMHDR& notice) override;
  std::optional<LRESULT> OnCommand(UINT code) override;
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

}  // namespace dayvane::help
