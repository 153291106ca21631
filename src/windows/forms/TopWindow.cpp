// SPDX-License-Identifier: MIT
#include "windows/forms/TopWindow.h"

namespace dayvane::widgets {

TopWindow::TopWindow(const Kind& kind) : Window(kind), m_look(std::make_shared<Look>(GetDpiForWindow(Handle()))) {}

LRESULT TopWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_DPICHANGED: {
      TakeLook(HIWORD(wParam));
      const RECT& place = *reinterpret_cast<const RECT*>(lParam);
      SetWindowPos(Handle(), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
      return 0;
    }
    case WM_SETTINGCHANGE:
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      if (m_look != nullptr) TakeLook(m_look->Dpi());
      break;
    default:
      break;
  }
  return Window::OnMessage(message, wParam, lParam);
}

void TopWindow::TakeLook(UINT dpi) {
  const SharedLook old = m_look;  // its fonts are used until everything inside has the new ones
  m_look = std::make_shared<Look>(dpi);
  LookChanged();
}

}  // namespace dayvane::widgets
