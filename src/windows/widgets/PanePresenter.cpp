// SPDX-License-Identifier: MIT
#include "windows/widgets/PanePresenter.h"

#include "windows/widgets/ChildWindow.h"

namespace dayvane::widgets {

PanePresenter::PanePresenter(controls::PictureBox& control, HWND parent, const SharedLook& look)
    : Window({.className = L"Dayvane.Pane",
              .style = WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
              .extendedStyle = WS_EX_CONTROLPARENT,
              .parent = parent}),
      m_control(control),
      m_placement(Handle(), look) {
  m_changed = control.Changed.ConnectScoped([this] { ShowState(Handle(), m_control); });
  m_isReady = true;
  ShowState(Handle(), control);
}

LRESULT PanePresenter::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (m_isReady && message == WM_SIZE) m_placement.PlaceAll();
  if (message == WM_NCDESTROY) RemovePropW(Handle(), kHelpIdProperty);
  return Window::OnMessage(message, wParam, lParam);
}

}  // namespace dayvane::widgets
