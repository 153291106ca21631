// SPDX-License-Identifier: MIT
#include "windows/tray/TrayStandIn.h"

namespace dayvane::widgets {

TrayStandIn::TrayStandIn()
    : TopWindow({.className = L"Dayvane.TrayStandIn",
                 .style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX,
                 .extendedStyle = WS_EX_APPWINDOW}) {
  m_isReady = true;
}

void TrayStandIn::SetPicture(int picture) {
  m_icons.Show(Handle(), picture, CurrentLook()->Dpi());
}

LRESULT TrayStandIn::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!m_isReady) return TopWindow::OnMessage(message, wParam, lParam);
  switch (message) {
    case WM_QUERYOPEN:  // whoever opens the minimised window wants the program's
      Chosen.Raise();
      return FALSE;
    case WM_CLOSE:
      return 0;
    case WM_SYSCOMMAND:
      if ((wParam & kSystemCommandMask) == SC_CLOSE) return 0;
      break;
    default:
      break;
  }
  return TopWindow::OnMessage(message, wParam, lParam);
}

}  // namespace dayvane::widgets
