// SPDX-License-Identifier: MIT
#include "windows/forms/DialogWindow.h"

#include "resources/MResourceConstants.h"
#include "windows/forms/ScreenFit.h"

namespace dayvane::widgets {

void PlaceChild(const ChildWindow& child, POINT corner, SIZE size) {
  SetWindowPos(child.Handle(), nullptr, corner.x, corner.y, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

DialogWindow::DialogWindow(controls::Form& form, const wchar_t* className, HWND owner, DWORD extendedStyle)
    : TopWindow({.className = className,
                 .style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN,
                 .extendedStyle = WS_EX_DLGMODALFRAME | extendedStyle,
                 .parent = owner,
                 .icon = kNormalIcon}),
      m_presenter(form, *this, Handle()) {}

void DialogWindow::Begin() {
  m_isReady = true;
  FitAround(LayOut());
}

void DialogWindow::Number(const ButtonPresenter& button, int id) {
  SetWindowLongPtrW(button.Handle(), GWLP_ID, id);
  if (id == IDOK) SendMessageW(button.Handle(), BM_SETSTYLE, BS_DEFPUSHBUTTON, FALSE);
}

void DialogWindow::FitAround(SIZE inside) {
  const UINT dpi = CurrentLook()->Dpi();
  RECT frame{0, 0, inside.cx, inside.cy};
  AdjustWindowRectExForDpi(&frame, static_cast<DWORD>(GetWindowLongPtrW(Handle(), GWL_STYLE)), FALSE,
                           static_cast<DWORD>(GetWindowLongPtrW(Handle(), GWL_EXSTYLE)), dpi);
  const SIZE size{frame.right - frame.left, frame.bottom - frame.top};
  const HWND owner = GetWindow(Handle(), GW_OWNER);
  RECT around = AvailableScreenAt({0, 0});
  if (IsWindowVisible(Handle()) != 0)
    GetWindowRect(Handle(), &around);
  else if (owner != nullptr && IsWindowVisible(owner) != 0 && IsIconic(owner) == 0)
    GetWindowRect(owner, &around);
  m_presenter.MoveTo(CentredIn(around, size));
}

void DialogWindow::LookChanged() {
  if (!m_isReady) return;
  RelayLook();
  FitAround(LayOut());
  InvalidateRect(Handle(), nullptr, TRUE);
}

void DialogWindow::PaintAll() {
  PAINTSTRUCT paint{};
  if (const HDC context = BeginPaint(Handle(), &paint)) {
    Paint(context);
    EndPaint(Handle(), &paint);
  }
}

WORD DialogWindow::DefaultNumber() const {
  const HWND focus = GetFocus();
  const bool isButton = IsChild(Handle(), focus) != 0 &&
                        (SendMessageW(focus, WM_GETDLGCODE, 0, 0) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
  return isButton ? static_cast<WORD>(GetDlgCtrlID(focus)) : static_cast<WORD>(IDOK);
}

void DialogWindow::MoveFocus(WPARAM wParam, LPARAM lParam) const {
  const HWND named = LOWORD(lParam) != 0 ? reinterpret_cast<HWND>(wParam) : nullptr;
  SetFocus(named != nullptr ? named : GetNextDlgTabItem(Handle(), GetFocus(), wParam != 0 ? TRUE : FALSE));
}

LRESULT DialogWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!m_isReady) return TopWindow::OnMessage(message, wParam, lParam);
  if (message == WM_PAINT) return PaintAll(), 0;
  if (message == DM_GETDEFID) return MAKELRESULT(DefaultNumber(), DC_HASDEFID);
  if (message == WM_NEXTDLGCTL) return MoveFocus(wParam, lParam), 0;
  if (const auto answer = m_presenter.OnMessage(message, wParam, lParam)) return *answer;
  const LRESULT answer = TopWindow::OnMessage(message, wParam, lParam);
  if (message == WM_DPICHANGED) FitAround(LayOut());  // not the size that the system suggests
  return answer;
}

}  // namespace dayvane::widgets
