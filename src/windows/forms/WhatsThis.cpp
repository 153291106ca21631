// SPDX-License-Identifier: MIT
#include "windows/forms/WhatsThis.h"

#include <windowsx.h>

#include "windows/widgets/ChildWindow.h"

namespace dayvane::widgets {

namespace {

int OwnHelpIdAt(HWND window, POINT at) {
  if (const LRESULT id = SendMessageW(window, HelpIdAtMessage(), 0, reinterpret_cast<LPARAM>(&at))) {
    return static_cast<int>(id);
  }
  return static_cast<int>(reinterpret_cast<INT_PTR>(GetPropW(window, kHelpIdProperty)));
}

/// The help context of a window or of what it is a part of; 0 for none.
int HelpIdAt(HWND window, HWND top, POINT at) {
  for (; window != nullptr; window = window == top ? nullptr : GetAncestor(window, GA_PARENT))
    if (const int id = OwnHelpIdAt(window, at)) return id;
  return 0;
}

/// The innermost window, which may be disabled: a greyed button can be explained too.
HWND InnermostAt(HWND window, POINT at) {
  for (;;) {
    POINT inside = at;
    ScreenToClient(window, &inside);
    const HWND child = ChildWindowFromPointEx(window, inside, CWP_SKIPINVISIBLE);
    if (child == nullptr || child == window) return window;
    window = child;
  }
}

POINT Below(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  return {place.left, place.bottom};
}

bool IsHelpCursorWanted(UINT message) {
  return message == WM_MOUSEMOVE || message == WM_SETCURSOR;
}

bool IsCancelled(UINT message) {
  return message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN || message == WM_CAPTURECHANGED ||
         message == WM_CANCELMODE;
}

}  // namespace

UINT HelpIdAtMessage() {
  static const UINT message = RegisterWindowMessageW(L"Dayvane.HelpIdAt");
  return message;
}

void WhatsThis::Enter() {
  if (m_isOn) return;
  SetCapture(m_window);
  m_isOn = true;  // after that: the one who had the mouse before is told that it has gone
  SetCursor(LoadCursorW(nullptr, IDC_HELP));
}

void WhatsThis::Leave() {
  if (!m_isOn) return;
  m_isOn = false;
  if (GetCapture() == m_window) ReleaseCapture();
  SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

std::optional<LRESULT> WhatsThis::OnMessage(UINT message, LPARAM lParam) {
  if (!m_isOn) return std::nullopt;
  if (IsHelpCursorWanted(message)) {
    SetCursor(LoadCursorW(nullptr, IDC_HELP));
    return TRUE;
  }
  if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) {
    POINT at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    ClientToScreen(m_window, &at);
    Leave();
    ExplainAt(at);
    return 0;
  }
  if (!IsCancelled(message)) return std::nullopt;
  Leave();
  return 0;
}

bool WhatsThis::Translate(const MSG& message) {
  if (!m_isOn || message.message != WM_KEYDOWN || message.wParam != VK_ESCAPE) return false;
  Leave();
  return true;
}

void WhatsThis::ExplainFocus() {
  const HWND focus = GetFocus();
  const POINT at = Below(focus);
  const int id = focus == nullptr ? 0 : HelpIdAt(focus, m_window, at);
  if (id != 0 && m_show)
    m_show(id, at);
  else
    Enter();
}

bool WhatsThis::ExplainAt(POINT at) {
  const int id = HelpIdAt(InnermostAt(m_window, at), m_window, at);
  if (id != 0 && m_show) m_show(id, at);
  return id != 0;
}

}  // namespace dayvane::widgets
