// SPDX-License-Identifier: MIT
#include "windows/widgets/ChildWindow.h"

#include <utility>

#include "controls/Control.h"
#include "controls/Deferred.h"
#include "windows/files/SystemError.h"
#include "windows/widgets/Guard.h"
#include "windows/widgets/SpokenName.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

namespace {

constexpr UINT_PTR kSubclass = 1;

/// A message given back to its sender; its answer is a pointer to an optional in the place of a result.
UINT ReflectedMessage() {
  static const UINT message = RegisterWindowMessageW(L"Dayvane.Reflected");
  return message;
}

struct Reflected {
  UINT message = WM_NULL;
  WPARAM wParam = 0;
  LPARAM lParam = 0;
  std::optional<LRESULT> answer;
};

HWND SenderOf(UINT message, LPARAM lParam) {
  if (message == WM_COMMAND) return reinterpret_cast<HWND>(lParam);
  return message == WM_NOTIFY ? reinterpret_cast<const NMHDR*>(lParam)->hwndFrom : nullptr;
}

}  // namespace

void ShowState(HWND window, const controls::Control& control) {
  SetPropW(window, kHelpIdProperty, reinterpret_cast<HANDLE>(static_cast<INT_PTR>(control.WhatsThisHelpID())));
  if ((IsWindowEnabled(window) != 0) != control.Enabled()) EnableWindow(window, control.Enabled() ? TRUE : FALSE);
  const bool shown = (GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0;
  if (shown != control.Visible()) ShowWindow(window, control.Visible() ? SW_SHOWNA : SW_HIDE);
}

std::optional<LRESULT> Reflect(UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND sender = SenderOf(message, lParam);
  if (sender == nullptr || GetWindowThreadProcessId(sender, nullptr) != GetCurrentThreadId()) return std::nullopt;
  Reflected reflected{message, wParam, lParam, std::nullopt};
  SendMessageW(sender, ReflectedMessage(), 0, reinterpret_cast<LPARAM>(&reflected));
  return reflected.answer;
}

ChildWindow::ChildWindow(controls::Control& control, const Kind& kind, HWND parent, const SharedLook& look)
    : m_control(control),
      m_look(look),
      m_handle(CreateWindowExW(kind.extendedStyle, kind.className, L"", WS_CHILD | kind.style, 0, 0, 0, 0, parent,
                               nullptr, ThisModule(), nullptr)) {
  if (m_handle == nullptr) files::Fail("a control's window");
  SetWindowSubclass(m_handle, &ChildWindow::Procedure, kSubclass, reinterpret_cast<DWORD_PTR>(this));
  SendMessageW(m_handle, WM_SETFONT, reinterpret_cast<WPARAM>(look->TextFont()), FALSE);
  m_connections.push_back(control.Changed.ConnectScoped([this] { Show(); }));
  m_connections.push_back(control.FocusWanted.ConnectScoped([this] { SetFocus(m_handle); }));
  m_connections.push_back(control.RefreshWanted.ConnectScoped([this] {
    if (!controls::IsInBackground()) UpdateWindow(m_handle);
  }));
}

ChildWindow::~ChildWindow() {
  if (m_handle == nullptr) return;
  if (m_isNamed) ForgetSpokenName(m_handle);
  RemoveWindowSubclass(m_handle, &ChildWindow::Procedure, kSubclass);
  DestroyWindow(m_handle);
}

void ChildWindow::SetLook(const SharedLook& look) {
  SendMessageW(m_handle, WM_SYSCOLORCHANGE, 0, 0);  // the system tells windows at the top alone
  SendMessageW(m_handle, WM_SETFONT, reinterpret_cast<WPARAM>(look->TextFont()), TRUE);
  m_look = look;  // last: the window uses the old font until it has the new one
}

void ChildWindow::SetSpokenName(const std::string& name) {
  SetText(m_handle, name);
  SpeakName(m_handle, name);
  m_isNamed = true;
}

void ChildWindow::Show() {
  ShowState(m_handle, m_control);
  ShowControl();
}

std::optional<LRESULT> ChildWindow::OnNotify(NMHDR& /*notice*/) {
  return std::nullopt;
}

std::optional<LRESULT> ChildWindow::OnCommand(UINT /*code*/) {
  return std::nullopt;
}

LRESULT ChildWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // What a child of its own tells it, such as a list its header, first goes back to a child that is the program's.
  if (const auto answer = Reflect(message, wParam, lParam)) return *answer;
  return DefSubclassProc(m_handle, message, wParam, lParam);
}

LRESULT ChildWindow::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != ReflectedMessage()) return OnMessage(message, wParam, lParam);
  auto& reflected = *reinterpret_cast<Reflected*>(lParam);
  reflected.answer = reflected.message == WM_NOTIFY ? OnNotify(*reinterpret_cast<NMHDR*>(reflected.lParam))
                                                    : OnCommandOf(LOWORD(reflected.wParam), HIWORD(reflected.wParam));
  return 0;
}

LRESULT CALLBACK ChildWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                        DWORD_PTR self) {
  auto* child = reinterpret_cast<ChildWindow*>(self);
  if (message == WM_DESTROY && child->m_isNamed) ForgetSpokenName(window);
  if (message == WM_NCDESTROY) {
    RemovePropW(window, kHelpIdProperty);
    RemoveWindowSubclass(window, &ChildWindow::Procedure, kSubclass);
    child->m_handle = nullptr;
    return DefSubclassProc(window, message, wParam, lParam);
  }
  return Guarded([&] { return child->Answer(message, wParam, lParam); }, LRESULT{0});
}

}  // namespace dayvane::widgets
