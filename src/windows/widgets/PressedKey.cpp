// SPDX-License-Identifier: MIT
#include "windows/widgets/PressedKey.h"

#include <utility>

#include "windows/widgets/Keys.h"

namespace dayvane::widgets {

std::optional<controls::MenuKey> PressedKey::Heard(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_KILLFOCUS:
      m_pressed = {};
      return std::nullopt;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if ((HIWORD(lParam) & KF_REPEAT) == 0) m_pressed = {static_cast<int>(wParam), ModifiersNow()};
      return std::nullopt;
    case WM_KEYUP:
    case WM_SYSKEYUP:
      if (m_pressed.key == 0 || m_pressed.key != static_cast<int>(wParam)) return std::nullopt;
      return std::exchange(m_pressed, {});
    default:
      return std::nullopt;
  }
}

}  // namespace dayvane::widgets
