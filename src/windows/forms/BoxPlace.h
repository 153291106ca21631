// SPDX-License-Identifier: MIT
#pragma once

#include "windows/files/Win32.h"

namespace dayvane::widgets {

/// Has the next message box of the system's open below a window instead of over it, where the screen has room.
class BoxPlace {
 public:
  /// With nullptr the box opens where the system puts it.
  explicit BoxPlace(HWND window);
  BoxPlace(const BoxPlace&) = delete;
  BoxPlace& operator=(const BoxPlace&) = delete;
  ~BoxPlace();

 private:
  static LRESULT CALLBACK Hear(int code, WPARAM wParam, LPARAM lParam);
  void Place(HWND box);

  HWND m_window;
  HHOOK m_hook = nullptr;
  BoxPlace* m_before = nullptr;
};

}  // namespace dayvane::widgets
