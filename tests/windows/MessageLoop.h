// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "windows/forms/EventLoop.h"

namespace dayvane::testing {

/// Does what waits in the thread's queue, as the program's loop would.
inline void RunMessages() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0 && message.message != WM_QUIT)
    widgets::Dispatch(message);
}

/// Runs the loop until something has come true. Returns false when it has not within a time that no test needs.
inline bool WaitUntil(const std::function<bool()>& isTrue) {
  constexpr ULONGLONG kLongestMilliseconds = 10000;
  constexpr DWORD kLookAgainMilliseconds = 20;
  const ULONGLONG end = GetTickCount64() + kLongestMilliseconds;
  for (RunMessages(); !isTrue(); RunMessages()) {
    if (GetTickCount64() > end) return false;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, kLookAgainMilliseconds, QS_ALLINPUT);
  }
  return true;
}

/// Hands a key to a window as the loop does. Modifiers are those of the keyboard's state.
inline void PressKey(HWND window, WPARAM key) {
  PostMessageW(window, WM_KEYDOWN, key, 1);
  PostMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
  RunMessages();
}

/// A modifier that is held down as long as this lives.
class HeldKey {
 public:
  explicit HeldKey(BYTE key) : m_key(key) { Set(0x80); }
  HeldKey(const HeldKey&) = delete;
  HeldKey& operator=(const HeldKey&) = delete;
  ~HeldKey() { Set(0); }

 private:
  void Set(BYTE state) const {
    BYTE keys[256]{};
    GetKeyboardState(keys);
    keys[m_key] = state;
    SetKeyboardState(keys);
  }

  BYTE m_key;
};

/// Does something once, from within a loop that is run next.
class Soon {
 public:
  explicit Soon(std::function<void()> act) : m_act(std::move(act)) {
    m_timer = SetTimer(nullptr, 0, 1, &Soon::Tick);
    Waiting() = this;
  }
  Soon(const Soon&) = delete;
  Soon& operator=(const Soon&) = delete;
  ~Soon() { Stop(); }

 private:
  static Soon*& Waiting() {
    static Soon* waiting = nullptr;
    return waiting;
  }
  static void CALLBACK Tick(HWND /*window*/, UINT /*message*/, UINT_PTR /*id*/, DWORD /*time*/) {
    Soon* self = Waiting();
    if (self == nullptr) return;
    self->Stop();
    self->m_act();
  }
  void Stop() {
    if (m_timer != 0) KillTimer(nullptr, m_timer);
    m_timer = 0;
    if (Waiting() == this) Waiting() = nullptr;
  }

  std::function<void()> m_act;
  UINT_PTR m_timer = 0;
};

}  // namespace dayvane::testing
