// SPDX-License-Identifier: MIT

// What the user does with the help window: keys, the splitter, the window's own buttons.
#include <algorithm>
#include <windowsx.h>

#include "windows/help/HelpViewer.h"

namespace dayvane::help {

namespace {

constexpr int kSplitterWidth = 6;  ///< pixels at 96 dots per inch
constexpr SIZE kLeastSize{420, 300};
constexpr int kLeastSide = 120;  ///< of what the splitter parts

bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

}  // namespace

RECT HelpViewer::Splitter() const {
  RECT room;
  GetClientRect(Handle(), &room);
  const int least = CurrentLook()->Pixels(kLeastSide);
  const int most = std::max<int>(least, room.right - least);
  const LONG left = std::clamp(CurrentLook()->Pixels(m_contentsWidth), least, most);
  return {left, m_toolbar.WantedHeight(), left + CurrentLook()->Pixels(kSplitterWidth), room.bottom};
}

/// True for what belongs to the splitter, which is done then.
bool HelpViewer::DragSplitter(UINT message, LPARAM lParam) {
  const POINT at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  const RECT splitter = Splitter();
  if (message == WM_LBUTTONDOWN && PtInRect(&splitter, at) != 0) {
    SetCapture(Handle());
    SetDragged(true);
    return true;
  }
  if (GetCapture() != Handle()) return false;
  if (message == WM_LBUTTONUP) ReleaseCapture();
  if (message == WM_MOUSEMOVE) {
    m_contentsWidth = MulDiv(std::max<int>(at.x, 0), USER_DEFAULT_SCREEN_DPI, static_cast<int>(CurrentLook()->Dpi()));
    LayOut();
  }
  return true;
}

/// Lines are broken anew while something is dragged; tables and pictures, which take longer, when it is let go.
void HelpViewer::SetDragged(bool dragged) {
  m_isDragged = dragged;
  if (!dragged) LayOut();
}

bool HelpViewer::TakeKey(WPARAM key) {
  const bool alt = IsDown(VK_MENU);
  const bool control = IsDown(VK_CONTROL);
  if (alt && control) return false;  // AltGr, which makes letters
  if (alt) return TakeAltKey(key);
  return control ? TakeControlKey(key) : TakePlainKey(key, IsDown(VK_SHIFT));
}

bool HelpViewer::TakeAltKey(WPARAM key) {
  switch (key) {
    case VK_LEFT:
      Do(HelpCommand::Back);
      return true;
    case VK_RIGHT:
      Do(HelpCommand::Forward);
      return true;
    case VK_HOME:
      Do(HelpCommand::FirstPage);
      return true;
    default:
      return m_findBar.IsOpen() && m_findBar.TakeLetter(key);
  }
}

bool HelpViewer::TakeControlKey(WPARAM key) {
  switch (key) {
    case VK_ADD:
    case VK_OEM_PLUS:
      Do(HelpCommand::LargerText);
      return true;
    case VK_SUBTRACT:
    case VK_OEM_MINUS:
      Do(HelpCommand::SmallerText);
      return true;
    case '0':
    case VK_NUMPAD0:
      Do(HelpCommand::NormalText);
      return true;
    case 'K':
      Do(HelpCommand::Search);
      return true;
    case 'F':
      Do(HelpCommand::Find);
      return true;
    case 'W':
    case VK_F4:
      Hide();
      return true;
    default:
      return false;
  }
}

bool HelpViewer::TakePlainKey(WPARAM key, bool shift) {
  switch (key) {
    case VK_F3:
      shift ? m_findBar.FindPrevious() : m_findBar.FindNext();
      return true;
    case VK_ESCAPE:
      m_findBar.IsOpen() ? m_findBar.Close() : Hide();
      return true;
    case VK_TAB:
      GoToNextPart(shift);
      return true;
    case VK_RETURN:
      if (m_findBar.PressFocused() || m_navigation.ChooseFirstFound()) return true;
      return GetFocus() == m_browser.Handle() && m_browser.FollowSelectedLink();
    default:
      return false;
  }
}

/// Through the links of the page, and from its last one on.
void HelpViewer::GoToNextPart(bool backward) {
  if (GetFocus() == m_browser.Handle() && m_browser.SelectLink(backward)) return;
  SetFocus(GetNextDlgTabItem(Handle(), GetFocus(), backward ? TRUE : FALSE));
}

/// The part that had the keyboard when another window took it away.
void HelpViewer::TakeFocus() {
  const bool isOurs = m_lastFocus != nullptr && IsChild(Handle(), m_lastFocus) != 0;
  SetFocus(isOurs ? m_lastFocus : m_browser.Handle());
}

/// What the mouse does between the parts; nothing where that is for the system.
std::optional<LRESULT> HelpViewer::OnMouse(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_MOUSEMOVE:
      if (DragSplitter(message, lParam)) return 0;
      break;
    case WM_ENTERSIZEMOVE:
      SetDragged(true);
      break;
    case WM_EXITSIZEMOVE:
    case WM_CAPTURECHANGED:
      if (m_isDragged) SetDragged(false);
      break;
    case WM_SETCURSOR:
      // Between the parts there is nothing of the window but the splitter.
      if (reinterpret_cast<HWND>(wParam) != Handle() || LOWORD(lParam) != HTCLIENT) break;
      SetCursor(LoadCursorW(nullptr, IDC_SIZEWE));
      return TRUE;
    case WM_APPCOMMAND:
      if (GET_APPCOMMAND_LPARAM(lParam) == APPCOMMAND_BROWSER_BACKWARD) Do(HelpCommand::Back);
      if (GET_APPCOMMAND_LPARAM(lParam) == APPCOMMAND_BROWSER_FORWARD) Do(HelpCommand::Forward);
      break;
    default:
      break;
  }
  return std::nullopt;
}

/// What has to do with the keyboard and the window's own buttons; nothing where that is for the system.
std::optional<LRESULT> HelpViewer::OnKeyboard(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case kHelpKey:
      return TakeKey(wParam) ? TRUE : FALSE;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (TakeKey(wParam)) return 0;
      break;
    case WM_ACTIVATE:
      if (LOWORD(wParam) == WA_INACTIVE) m_lastFocus = GetFocus();
      break;
    case WM_SETFOCUS:
      TakeFocus();
      return 0;
    case WM_COMMAND:
      if (reinterpret_cast<HWND>(lParam) != m_toolbar.Handle()) break;
      Do(static_cast<HelpCommand>(LOWORD(wParam)));
      return 0;
    default:
      break;
  }
  return std::nullopt;
}

LRESULT HelpViewer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto answer = OnMouse(message, wParam, lParam)) return *answer;
  if (const auto answer = OnKeyboard(message, wParam, lParam)) return *answer;
  switch (message) {
    case WM_SIZE:
      if (wParam != SIZE_MINIMIZED) LayOut();
      return 0;
    case WM_GETMINMAXINFO:
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {CurrentLook()->Pixels(kLeastSize.cx),
                                                               CurrentLook()->Pixels(kLeastSize.cy)};
      return 0;
    case WM_CLOSE:
      Hide();
      return 0;
    default:
      return TopWindow::OnMessage(message, wParam, lParam);
  }
}

}  // namespace dayvane::help
