// SPDX-License-Identifier: MIT
#include "windows/forms/FormPresenter.h"

#include <windowsx.h>

#include "base/ScopedValue.h"
#include "windows/forms/Questions.h"
#include "windows/forms/ScreenFit.h"
#include "windows/widgets/Guard.h"
#include "windows/widgets/Lengths.h"

namespace dayvane::widgets {

using controls::UnloadMode;
using controls::WindowState;

namespace {

constexpr UINT_PTR kInsideSubclass = 2;  // ChildWindow's is another one
constexpr UINT_PTR kEndTimer = 0x3E0D;   // beside those that a window has for itself
constexpr UINT kLookAgainMilliseconds = 50;

enum LaterAct : WPARAM { kTellState, kTellActivated, kClose, kEnterWhatsThis };

/// What a window does after the message that led to it, of which the system is still in the middle.
UINT LaterMessage() {
  static const UINT message = RegisterWindowMessageW(L"Dayvane.Later");
  return message;
}

}  // namespace

FormPresenter::FormPresenter(controls::Form& form, TopWindow& window, HWND inside)
    : m_form(form), m_window(window), m_inside(inside), m_whatsThis(window.Handle()) {
  m_connections.push_back(form.Changed.ConnectScoped([this] { Show(); }));
  m_connections.push_back(form.WhatsThisWanted.ConnectScoped([this] { Later(kEnterWhatsThis); }));
  m_connections.push_back(form.RefreshWanted.ConnectScoped([this] {
    if (!controls::IsInBackground()) RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  }));
  if (m_inside != Handle())
    SetWindowSubclass(m_inside, &FormPresenter::InsideProcedure, kInsideSubclass, reinterpret_cast<DWORD_PTR>(this));
  Show();
}

FormPresenter::~FormPresenter() {
  if (m_inside != Handle()) RemoveWindowSubclass(m_inside, &FormPresenter::InsideProcedure, kInsideSubclass);
  if (m_closedOwner != nullptr) EnableWindow(m_closedOwner, TRUE);
}

bool FormPresenter::RequestUnload(UnloadMode mode) {
  TellPlace();
  return m_form.RequestUnload(mode);
}

void FormPresenter::CloseWhenAnswered() {
  Later(kClose);
}

void FormPresenter::End(UnloadMode mode) {
  if (!controls::IsAsking() && !controls::IsAtWork()) {
    RequestUnload(mode);
    return;
  }
  m_endMode = mode;
  CloseOpenQuestion();
  SetTimer(Handle(), kEndTimer, kLookAgainMilliseconds, nullptr);
}

void FormPresenter::ShowModal() {
  // Help can be read beside a dialog, so only its owner is closed to the user.
  const HWND owner = GetWindow(Handle(), GW_OWNER);
  if (owner != nullptr && IsWindowEnabled(owner) != 0) {
    m_closedOwner = owner;
    EnableWindow(owner, FALSE);
  }
  const OpenDialog open(Handle());
  m_form.SetVisible(true);
  RunEventLoopUntil([this] { return !m_form.Visible(); });
}

void FormPresenter::BringToFront() {
  SetForegroundWindow(Handle());
  if (GetForegroundWindow() != Handle()) BringWindowToTop(Handle());
}

void FormPresenter::Later(WPARAM what) {
  PostMessageW(Handle(), LaterMessage(), what, 0);
}

void FormPresenter::DoLater(WPARAM what) {
  if (what == kTellState) TellState();
  // A program that is ended from elsewhere may come to the front by just that.
  if (what == kTellActivated && !m_form.IsUnloaded()) m_form.Activate.Raise();
  if (what == kClose) m_deferred.AfterWorkAndQuestions([this] { RequestUnload(UnloadMode::Code); });
  if (what == kEnterWhatsThis) m_whatsThis.Enter();
}

bool FormPresenter::IsDialog() const {
  return (GetWindowLongPtrW(Handle(), GWL_EXSTYLE) & WS_EX_DLGMODALFRAME) != 0;
}

bool FormPresenter::IsHourglass() const {
  return m_form.Pointer() == controls::MousePointer::Hourglass;
}

LRESULT CALLBACK FormPresenter::InsideProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                                UINT_PTR /*id*/, DWORD_PTR self) {
  const LRESULT answer = DefSubclassProc(window, message, wParam, lParam);
  if (message == WM_SIZE) Guarded([&] { return reinterpret_cast<FormPresenter*>(self)->TellScale(), 0; }, 0);
  return answer;
}

std::optional<LRESULT> FormPresenter::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == LaterMessage()) return DoLater(wParam), 0;
  if (const auto answer = m_whatsThis.OnMessage(message, lParam)) return answer;
  switch (message) {
    case WM_WINDOWPOSCHANGED:
      OnPlaced();
      return std::nullopt;
    case WM_SIZE:
      if (m_inside == Handle()) TellScale();
      return std::nullopt;
    case WM_ACTIVATE:
    case WM_SETFOCUS:
      return OnFocus(message, wParam);
    case WM_SETCURSOR:
      return OnPointer(lParam);
    case WM_CONTEXTMENU:
      return OnContextMenu(lParam);
    case WM_HELP:
      return TRUE;  // F1 is a key of the form's like others
    default:
      return OnClosing(message, wParam);
  }
}

std::optional<LRESULT> FormPresenter::OnClosing(UINT message, WPARAM wParam) {
  switch (message) {
    case WM_SYSCOMMAND:
      return OnSystemCommand(wParam & kSystemCommandMask);
    case WM_CLOSE:
      // Whoever closes a window by its box or menu does so by a command of the system's; this comes from programs that
      // end others.
      End(IsDialog() ? UnloadMode::ControlMenu : UnloadMode::TaskManager);
      return 0;
    case WM_TIMER:
      if (wParam != kEndTimer) return std::nullopt;
      KillTimer(Handle(), kEndTimer);
      End(m_endMode);
      return 0;
    case WM_QUERYENDSESSION:
      return OnSession(SessionNews::MayEnd);
    case WM_ENDSESSION:
      return OnSession(wParam != FALSE ? SessionNews::Ends : SessionNews::GoesOn);
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> FormPresenter::OnSession(SessionNews news) {
  if (news == SessionNews::MayEnd) CloseOpenQuestion();  // now, so that what it asked is over when the session ends
  if (m_sessionListener)
    m_sessionListener(news);
  else if (news == SessionNews::Ends)
    EndSession();
  return news == SessionNews::MayEnd ? TRUE : 0;
}

std::optional<LRESULT> FormPresenter::OnSystemCommand(WPARAM command) {
  if (command == SC_CONTEXTHELP) return m_whatsThis.Enter(), 0;
  if (command != SC_CLOSE) return std::nullopt;
  if (!controls::IsAtWork()) RequestUnload(UnloadMode::ControlMenu);
  return 0;
}

std::optional<LRESULT> FormPresenter::OnFocus(UINT message, WPARAM wParam) {
  if (message == WM_ACTIVATE) {
    if (LOWORD(wParam) == WA_INACTIVE) {
      if (IsChild(Handle(), GetFocus()) != 0) m_focus = GetFocus();
    } else if (HIWORD(wParam) == 0) {
      Later(kTellActivated);
    }
    return std::nullopt;
  }
  const bool canHaveIt =
      IsChild(Handle(), m_focus) != 0 && IsWindowVisible(m_focus) != 0 && IsWindowEnabled(m_focus) != 0;
  const HWND focus = canHaveIt ? m_focus : GetNextDlgTabItem(Handle(), nullptr, FALSE);
  if (focus == nullptr || focus == Handle()) return std::nullopt;
  SetFocus(focus);
  return 0;
}

std::optional<LRESULT> FormPresenter::OnPointer(LPARAM hit) const {
  if (!m_showsHourglass || controls::IsAsking() || static_cast<SHORT>(LOWORD(hit)) == HTERROR) return std::nullopt;
  SetCursor(LoadCursorW(nullptr, IDC_WAIT));
  return TRUE;
}

std::optional<LRESULT> FormPresenter::OnContextMenu(LPARAM where) {
  if (!IsDialog()) return std::nullopt;
  constexpr LPARAM kByKeyboard = -1;
  if (where == kByKeyboard)
    m_whatsThis.ExplainFocus();
  else
    m_whatsThis.ExplainAt({GET_X_LPARAM(where), GET_Y_LPARAM(where)});
  return 0;
}

void FormPresenter::OnPlaced() {
  if (m_isPlacing) return;
  TellPlace();
  // Told later: the program may hide the window on that, which the system is still busy with.
  if (StateOfWindow() != m_shownState) Later(kTellState);
}

}  // namespace dayvane::widgets
