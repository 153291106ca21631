// SPDX-License-Identifier: MIT
#include "windows/help/HelpPart.h"

namespace dayvane::help {

namespace {

/// A key that has done its work must not become a letter as well, at which an edit box would beep.
void DropLetter(HWND window) {
  MSG message;
  PeekMessageW(&message, window, WM_CHAR, WM_DEADCHAR, PM_REMOVE);
  PeekMessageW(&message, window, WM_SYSCHAR, WM_SYSDEADCHAR, PM_REMOVE);
}

}  // namespace

HelpPart::HelpPart(const Kind& kind, HWND parent, const widgets::SharedLook& look)
    : ChildWindow(state, kind, parent, look) {
  Show();
}

void HelpPart::Place(int left, int top, int width, int height) const {
  SetWindowPos(Handle(), nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

std::optional<LRESULT> HelpPart::OnNotify(NMHDR& notice) {
  if (Notified) Notified(notice);
  return std::nullopt;
}

std::optional<LRESULT> HelpPart::OnCommand(UINT code) {
  if (Commanded) Commanded(code);
  return std::nullopt;
}

LRESULT HelpPart::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // Where the event loop treats windows as dialogs, it would take Tab, Enter and Esc for itself.
  if (message == WM_GETDLGCODE) return ChildWindow::OnMessage(message, wParam, lParam) | DLGC_WANTALLKEYS;
  const bool isKey = message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
  if (isKey && SendMessageW(GetAncestor(Handle(), GA_ROOT), kHelpKey, wParam, 0) != 0) {
    if (Handle() != nullptr) DropLetter(Handle());
    return 0;
  }
  return ChildWindow::OnMessage(message, wParam, lParam);
}

}  // namespace dayvane::help
