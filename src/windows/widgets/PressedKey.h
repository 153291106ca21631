// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "controls/Menu.h"
#include "windows/files/Win32.h"

namespace dayvane::widgets {

/// The key that is held down in a window. The release of a key that closed a message box arrives at the window below
/// it: only a key that was pressed here counts.
class PressedKey {
 public:
  /// Looks at a message of the window. The key and the modifiers of its press when it is released here.
  std::optional<controls::MenuKey> Heard(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  controls::MenuKey m_pressed;
};

}  // namespace dayvane::widgets
