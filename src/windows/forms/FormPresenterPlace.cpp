// SPDX-License-Identifier: MIT

// Where a form's window is and how it looks from outside: what the form says goes to the window, and what the user does
// with the window to the form.

#include "base/ScopedValue.h"
#include "windows/files/WideText.h"
#include "windows/forms/FormPresenter.h"
#include "windows/forms/ScreenFit.h"
#include "windows/widgets/Lengths.h"

namespace dayvane::widgets {

using controls::WindowState;

namespace {

RECT FrameOf(HWND window) {
  RECT frame{};
  GetWindowRect(window, &frame);
  return frame;
}

bool IsPointerOverUs() {
  POINT at{};
  GetCursorPos(&at);
  return GetWindowThreadProcessId(WindowFromPoint(at), nullptr) == GetCurrentThreadId();
}

/// The frame that sizes a window is wider than what is seen of it, and a window may lie at the very edge of a screen.
RECT WithUnseenFrame(RECT available, HWND window, UINT dpi) {
  if ((GetWindowLongPtrW(window, GWL_STYLE) & WS_THICKFRAME) == 0) return available;
  const int unseen = GetSystemMetricsForDpi(SM_CXSIZEFRAME, dpi) + GetSystemMetricsForDpi(SM_CXPADDEDBORDER, dpi) - 1;
  return {available.left - unseen, available.top, available.right + unseen, available.bottom + unseen};
}

}  // namespace

FormPresenter::Place FormPresenter::PlaceOf(const controls::Form& form) {
  return {form.Left(), form.Top(), form.Width(), form.Height()};
}

void FormPresenter::TellScale() {
  RECT inside{};
  if (IsIconic(Handle()) != 0 || GetClientRect(m_inside, &inside) == 0) return;
  const UINT dpi = m_window.CurrentLook()->Dpi();
  m_form.SetScale(ToTwips(inside.right, dpi), ToTwips(inside.bottom, dpi));
}

WindowState FormPresenter::StateOfWindow() const {
  if (IsIconic(Handle()) != 0) return WindowState::Minimised;
  return IsZoomed(Handle()) != 0 ? WindowState::Maximised : WindowState::Normal;
}

void FormPresenter::TellState() {
  m_shownState = StateOfWindow();
  m_form.SetState(m_shownState);
}

FormPresenter::Place FormPresenter::PlaceOfFrame(const RECT& frame) const {
  const UINT dpi = GetDpiForWindow(Handle());
  return {ToTwips(frame.left, GetDpiForSystem()), ToTwips(frame.top, GetDpiForSystem()),
          ToTwips(frame.right - frame.left, dpi), ToTwips(frame.bottom - frame.top, dpi)};
}

void FormPresenter::TellPlace() {
  if (m_isPlacing || IsWindowVisible(Handle()) == 0 || StateOfWindow() != WindowState::Normal) return;
  Tell(PlaceOfFrame(FrameOf(Handle())));
}

void FormPresenter::Tell(const Place& place) {
  m_shownPlace = place;
  m_form.Move(place.left, place.top, place.width, place.height);
}

void FormPresenter::MoveTo(const RECT& frame) {
  const Place place = PlaceOfFrame(frame);
  m_form.Move(place.left, place.top, place.width, place.height);
}

void FormPresenter::Show() {
  SetText(Handle(), m_form.Caption());
  ShowEnabled();
  m_latePointer.Changed(IsHourglass());
  ShowPlace();
  ShowState();
  ShowVisible();
}

void FormPresenter::ShowEnabled() {
  // Only what is new: a box that is open has disabled its owner for itself.
  if (m_form.Enabled() == m_shownEnabled) return;
  m_shownEnabled = m_form.Enabled();
  EnableWindow(Handle(), m_shownEnabled ? TRUE : FALSE);
}

void FormPresenter::ShowPlace() {
  const Place place = PlaceOf(m_form);
  if (place == m_shownPlace || place.width <= 0 || place.height <= 0) return;
  if (StateOfWindow() != WindowState::Normal) return;
  const ScopedValue placing(m_isPlacing, true);
  m_shownPlace = place;
  const RECT wanted = ShowWindowAt(place);
  const RECT frame = FrameOf(Handle());
  if (EqualRect(&frame, &wanted) == 0) Tell(PlaceOfFrame(frame));
}

RECT FormPresenter::ShowWindowAt(const Place& place) const {
  constexpr UINT kOnlyPlace = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER;
  RECT wanted{ToPixels(place.left, GetDpiForSystem()), ToPixels(place.top, GetDpiForSystem()), 0, 0};
  // First to its screen, in whose dots per inch its size is.
  SetWindowPos(Handle(), nullptr, wanted.left, wanted.top, 0, 0, kOnlyPlace | SWP_NOSIZE);
  const UINT dpi = GetDpiForWindow(Handle());
  wanted.right = wanted.left + ToPixels(place.width, dpi);
  wanted.bottom = wanted.top + ToPixels(place.height, dpi);
  const RECT fitted = FitToScreen(wanted, WithUnseenFrame(AvailableScreenFor(wanted), Handle(), dpi));
  SetWindowPos(Handle(), nullptr, fitted.left, fitted.top, fitted.right - fitted.left, fitted.bottom - fitted.top,
               kOnlyPlace);
  return wanted;
}

void FormPresenter::ShowState() {
  // A hidden window would show itself to take its state: that waits until it is shown.
  if (m_form.State() != m_shownState && IsWindowVisible(Handle()) != 0) TakeState();
}

void FormPresenter::TakeState() {
  const HWND window = Handle();
  const ScopedValue placing(m_isPlacing, true);
  m_shownState = m_form.State();
  if (m_shownState == WindowState::Minimised) {
    ShowWindow(window, SW_SHOWMINIMIZED);
  } else if (m_shownState == WindowState::Maximised) {
    ShowWindow(window, SW_SHOWMAXIMIZED);
  } else {
    ShowWindow(window, StateOfWindow() == WindowState::Normal ? SW_SHOW : SW_RESTORE);
    // One that was maximised before it was minimised is restored in two steps.
    if (IsZoomed(window) != 0) ShowWindow(window, SW_RESTORE);
  }
}

void FormPresenter::ShowPointer() {
  if (IsHourglass() == m_showsHourglass) return;
  m_showsHourglass = IsHourglass();
  if (IsPointerOverUs()) SetCursor(LoadCursorW(nullptr, m_showsHourglass ? IDC_WAIT : IDC_ARROW));
}

void FormPresenter::ShowVisible() {
  if (m_form.Visible() == (IsWindowVisible(Handle()) != 0)) return;
  if (!m_form.Visible()) return Hide();
  TakeState();
  BringToFront();
  TellScale();
  if (!std::exchange(m_wasShown, true)) m_form.Resize.Raise();  // every form gets one when it first opens
}

void FormPresenter::Hide() {
  TellPlace();
  // The owner first, or the system would give the keyboard to another program.
  if (m_closedOwner != nullptr) EnableWindow(std::exchange(m_closedOwner, nullptr), TRUE);
  ShowWindow(Handle(), SW_HIDE);
  // A loop that waits for this looks only after a message.
  PostMessageW(Handle(), WM_NULL, 0, 0);
}

}  // namespace dayvane::widgets
