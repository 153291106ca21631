// SPDX-License-Identifier: MIT
#include "windows/forms/PaneSplitter.h"

#include <utility>

namespace dayvane::widgets {

PaneSplitter::PaneSplitter(HWND parent, std::function<void(int left)> dragged)
    : Window({.className = L"Dayvane.Splitter",
              .style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS,
              .parent = parent,
              .pointer = IDC_SIZEWE}),
      m_dragged(std::move(dragged)) {}

LRESULT PaneSplitter::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN:
      m_grip = GET_X_LPARAM(lParam);
      SetCapture(Handle());
      return 0;
    case WM_LBUTTONUP:
      if (GetCapture() == Handle()) ReleaseCapture();
      return 0;
    case WM_MOUSEMOVE: {
      if (GetCapture() != Handle()) return 0;
      POINT at{GET_X_LPARAM(lParam), 0};
      MapWindowPoints(Handle(), GetParent(Handle()), &at, 1);
      m_dragged(at.x - m_grip);
      return 0;
    }
    default:
      return Window::OnMessage(message, wParam, lParam);
  }
}

}  // namespace dayvane::widgets
