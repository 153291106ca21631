// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "windows/files/WideText.h"
#include "windows/forms/TopWindow.h"

namespace dayvane::widgets {

/// A window for the presenters of a test.
class TestWindow : public TopWindow {
 public:
  TestWindow() : TopWindow({.className = L"Dayvane.Test", .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN}) {
    SetWindowPos(Handle(), nullptr, 0, 0, 700, 500, SWP_NOZORDER);
    ShowWindow(Handle(), SW_SHOW);
  }
};

/// Handles what waits in the queue of messages.
inline void HandleMessages() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

/// Handles messages until something holds, which a broken program never lets happen. Returns whether it does.
template <class Condition>
bool WaitFor(Condition holds) {
  constexpr int kMostMilliseconds = 10'000;
  const ULONGLONG end = GetTickCount64() + kMostMilliseconds;
  while (!holds()) {
    if (GetTickCount64() > end) return false;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    HandleMessages();
  }
  return true;
}

/// Makes a key count as held down or not for what asks while a message is handled.
inline void HoldKey(int key, bool isDown) {
  BYTE keys[256]{};
  GetKeyboardState(keys);
  keys[key] = isDown ? 0x80 : 0;
  SetKeyboardState(keys);
}

inline std::string TextOf(HWND window) {
  wchar_t text[512]{};
  GetWindowTextW(window, text, 512);
  return files::FromWide(text).value_or("");
}

inline void MouseClick(HWND window, POINT at, int button = VK_LBUTTON) {
  const LPARAM place = MAKELPARAM(at.x, at.y);
  const bool left = button == VK_LBUTTON;
  PostMessageW(window, left ? WM_LBUTTONUP : WM_RBUTTONUP, 0, place);
  SendMessageW(window, left ? WM_LBUTTONDOWN : WM_RBUTTONDOWN, left ? MK_LBUTTON : MK_RBUTTON, place);
  HandleMessages();
}

inline void Press(HWND window, int key) {
  SendMessageW(window, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
  SendMessageW(window, WM_KEYUP, static_cast<WPARAM>(key), static_cast<LPARAM>(0xC0000001));
}

}  // namespace dayvane::widgets
