// SPDX-License-Identifier: MIT
#include "windows/tray/TrayStandIn.h"

#include <utility>

#include "windows/widgets/Pictures.h"

namespace dayvane::widgets {

namespace {

constexpr WPARAM kCommandMask = 0xFFF0;  // the low bits are the system's own (documentation of WM_SYSCOMMAND)

}  // namespace

TrayStandIn::TrayStandIn()
    : TopWindow({.className = L"Dayvane.TrayStandIn",
                 .style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX,
                 .extendedStyle = WS_EX_APPWINDOW}) {
  m_isReady = true;
}

void TrayStandIn::SetPicture(int picture) {
  const UINT dpi = CurrentLook()->Dpi();
  Icon large = PictureIcon(picture, GetSystemMetricsForDpi(SM_CXICON, dpi));
  Icon small = PictureIcon(picture, GetSystemMetricsForDpi(SM_CXSMICON, dpi));
  SendMessageW(Handle(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(large.get()));
  SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(small.get()));
  m_large = std::move(large);  // last: the window uses the old ones until it has the new ones
  m_small = std::move(small);
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
      if ((wParam & kCommandMask) == SC_CLOSE) return 0;
      break;
    default:
      break;
  }
  return TopWindow::OnMessage(message, wParam, lParam);
}

}  // namespace dayvane::widgets
