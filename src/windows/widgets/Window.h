// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "windows/files/Win32.h"

namespace dayvane::widgets {

/// A window of a class of the program's own. What the system tells it comes to OnMessage, from which no error gets out.
class Window {
 public:
  struct Kind {
    const wchar_t* className = L"";  ///< registered when the first window of the name is made
    DWORD style = 0;
    DWORD extendedStyle = 0;
    HWND parent = nullptr;  ///< of a child; the owner of a window at the top
    UINT classStyle = 0;
    int background = COLOR_3DFACE;       ///< COLOR_…
    int icon = 0;                        ///< number of an icon resource, 0 for none
    const wchar_t* pointer = IDC_ARROW;  ///< IDC_…
  };

  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window();

  HWND Handle() const { return m_handle; }

 protected:
  /// Fails with an Error when the system gives no window.
  explicit Window(const Kind& kind);

  /// The answer to a message. What this does with it: a child's WM_COMMAND and WM_NOTIFY go back to the child (see
  /// ChildWindow), and the system does the rest.
  virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND m_handle = nullptr;
};

/// The instance of the program or test that this code is part of.
HINSTANCE ThisModule();

/// A text for the screen; one that is not well formed UTF-8 is shown with what is.
std::wstring ShownText(const std::string& text);

/// The text of a window, as SetText gives it or its user.
void SetText(HWND window, const std::string& text);
std::wstring WideTextOf(HWND window);

}  // namespace dayvane::widgets
