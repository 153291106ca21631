// SPDX-License-Identifier: MIT

// The keys of a form's window: those of its menus, those that move between its controls, and those that the form hears.

#include <utility>

#include "controls/Keys.h"
#include "windows/forms/FormPresenter.h"
#include "windows/widgets/Keys.h"

namespace dayvane::widgets {

bool FormPresenter::Translate(MSG& message) {
  const HWND window = Handle();
  if (message.hwnd != window && IsChild(window, message.hwnd) == 0) return false;
  if (m_whatsThis.Translate(message)) return true;
  switch (message.message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (KeyDown(message)) return true;
      break;
    case WM_KEYUP:
    case WM_SYSKEYUP:
      if (KeyUp(message)) return true;
      break;
    default:
      break;
  }
  if (m_accelerators != nullptr && IsWindowEnabled(window) != 0 &&
      TranslateAcceleratorW(window, m_accelerators, &message) != 0)
    return true;
  return IsDialog() && IsDialogMessageW(window, &message) != 0;
}

bool FormPresenter::KeyDown(const MSG& message) {
  m_pressedKey = 0;
  if (message.wParam == VK_F1 && ModifiersNow() == controls::kShiftMask) {
    m_whatsThis.ExplainFocus();
    return true;
  }
  if (message.wParam == VK_ESCAPE && IsDialog()) {
    RequestUnload(controls::UnloadMode::ControlMenu);
    return true;
  }
  m_pressedKey = message.wParam;
  return !IsDialog() && MoveFocus(message);
}

bool FormPresenter::MoveFocus(const MSG& message) const {
  if (message.wParam != VK_TAB || (ModifiersNow() & ~controls::kShiftMask) != 0) return false;
  const HWND next = GetNextDlgTabItem(Handle(), GetFocus(), ModifiersNow() == controls::kShiftMask ? TRUE : FALSE);
  if (next == nullptr) return false;
  SetFocus(next);
  return true;
}

bool FormPresenter::KeyUp(const MSG& message) {
  if (message.wParam != std::exchange(m_pressedKey, 0)) return false;
  m_form.KeyUp.Raise(static_cast<int>(message.wParam), ModifiersNow());
  // What the form did may have been to end this window.
  return IsWindow(message.hwnd) == 0;
}

}  // namespace dayvane::widgets
