// SPDX-License-Identifier: MIT
#pragma once

#include "windows/files/Win32.h"

/// The boxes and dialogs that wait for the user's answer, of which the last one opened must be answered first.
namespace dayvane::widgets {

/// A dialog of the program's own, open for as long as this lives. The system's message boxes need none.
class OpenDialog {
 public:
  explicit OpenDialog(HWND dialog);
  OpenDialog(const OpenDialog&) = delete;
  OpenDialog& operator=(const OpenDialog&) = delete;
  ~OpenDialog();
};

/// The box or dialog to be answered next, or nullptr.
HWND OpenQuestion();

/// Has the box or dialog closed soon, as if the user had: a question is answered with No, a dialog cancelled.
void CloseOpenQuestion();

}  // namespace dayvane::widgets
