// SPDX-License-Identifier: MIT
#pragma once

#include "windows/widgets/Look.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

/// What is a command in the wParam of WM_SYSCOMMAND; the low bits are the system's own.
inline constexpr WPARAM kSystemCommandMask = 0xFFF0;

/// A window at the top of the screen, which knows how the user wants windows to look and hears when that changes.
class TopWindow : public Window {
 public:
  const SharedLook& CurrentLook() const { return m_look; }

 protected:
  explicit TopWindow(const Kind& kind);

  /// The window has come to a screen of other dots per inch, or the user has chosen other fonts or colours: the new
  /// look goes to everything inside.
  virtual void LookChanged() {}

  /// Takes a suggested place on a screen of other dots per inch; everything else goes to Window.
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void TakeLook(UINT dpi);

  SharedLook m_look;
};

}  // namespace dayvane::widgets
