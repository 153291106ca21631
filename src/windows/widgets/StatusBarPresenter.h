// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "controls/SimpleControls.h"
#include "windows/widgets/ChildWindow.h"

namespace dayvane::widgets {

/// Shows the status bar: its text, and at its end a picture while there is one to show.
class StatusBarPresenter final : public ChildWindow {
 public:
  StatusBarPresenter(controls::StatusBar& control, HWND parent, const SharedLook& look);

  /// Pixels that the font wants.
  int IdealHeight() const;

  /// A picture of the program's at the bar's end, 0 for none, and the words that explain it.
  void ShowPicture(int picture, const std::string& words);

  void SetLook(const SharedLook& look) override;

 protected:
  void ShowControl() override;
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void ShowParts();

  const controls::StatusBar& m_control;
  int m_picture = 0;
  std::string m_words;
  Icon m_icon;  ///< the bar does not own it
};

}  // namespace dayvane::widgets
