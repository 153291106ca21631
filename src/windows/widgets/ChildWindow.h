// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "controls/Signal.h"
#include "windows/files/Win32.h"
#include "windows/widgets/Look.h"

namespace dayvane::controls {
class Control;
}

namespace dayvane::widgets {

/// Property of a window that holds its control's help context.
inline constexpr const wchar_t* kHelpIdProperty = L"Dayvane.HelpContextId";

/// A control shown as a child window of one of the system's classes: what every control has (visible, enabled, focus,
/// help) and the way for a presenter to everything that the window does. Its place is its container's business.
///
/// A presenter calls Show at the end of its constructor.
class ChildWindow {
 public:
  struct Kind {
    const wchar_t* className = L"";
    DWORD style = 0;  ///< beside WS_CHILD
    DWORD extendedStyle = 0;
  };

  ChildWindow(const ChildWindow&) = delete;
  ChildWindow& operator=(const ChildWindow&) = delete;
  virtual ~ChildWindow();

  HWND Handle() const { return m_handle; }

  /// The font and the lengths of the screen that the window is on now.
  virtual void SetLook(const SharedLook& look);
  const SharedLook& CurrentLook() const { return m_look; }

  /// What a screen reader calls a control that shows no caption of its own.
  void SetSpokenName(const std::string& name);

 protected:
  /// The control must outlive the window. Fails with an Error when the system gives no window.
  ChildWindow(controls::Control& control, const Kind& kind, HWND parent, const SharedLook& look);

  /// Shows everything anew.
  void Show();

  /// Shows what this kind of control has beside what every control has. Called when some state is new.
  virtual void ShowControl() = 0;

  /// What the window tells its parent, which gives it back: the answer, or nothing to leave it to the system.
  virtual std::optional<LRESULT> OnNotify(NMHDR& notice);
  virtual std::optional<LRESULT> OnCommand(UINT code);

  /// The same where the window has several commands, each with a number.
  virtual std::optional<LRESULT> OnCommandOf(UINT /*id*/, UINT code) { return OnCommand(code); }

  /// The answer to a message. What this does with it: the window's class answers.
  virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR self);

  LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);

  controls::Control& m_control;
  SharedLook m_look;
  HWND m_handle = nullptr;
  bool m_isNamed = false;  ///< for screen readers
  std::vector<controls::Connection> m_connections;
};

/// Shows what every control has: its help context, and whether it is enabled and visible.
void ShowState(HWND window, const controls::Control& control);

/// Gives WM_COMMAND and WM_NOTIFY back to the child of the program's own that they are from; nothing for every other
/// message and child.
std::optional<LRESULT> Reflect(UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace dayvane::widgets
