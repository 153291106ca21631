// SPDX-License-Identifier: MIT
#include "windows/WindowsWindowing.h"

#include <algorithm>
#include <vector>

#include "base/ScopedValue.h"
#include "controls/Deferred.h"
#include "windows/forms/AboutBox.h"
#include "windows/forms/BoxPlace.h"
#include "windows/forms/FormPresenter.h"
#include "windows/forms/Questions.h"
#include "windows/widgets/Lengths.h"

namespace dayvane::widgets {

using platform::Message;
using platform::MessageAnswer;

namespace {

constexpr ULONGLONG kBetweenPaintingsMilliseconds = 50;
constexpr int kMostPaintings = 200;  // a window that is never painted out must not hold the work up

/// The arrow for as long as the user has something to answer, also in the middle of work under the hourglass.
class ArrowPointer {
 public:
  ArrowPointer() = default;
  ArrowPointer(const ArrowPointer&) = delete;
  ArrowPointer& operator=(const ArrowPointer&) = delete;
  ~ArrowPointer() { SetCursor(m_before); }

 private:
  controls::QuestionScope m_question;
  HCURSOR m_before = SetCursor(LoadCursorW(nullptr, IDC_ARROW));
};

/// The other windows take no input either while a box is open: the box itself closes only its owner.
class ClosedWindows {
 public:
  ClosedWindows() = default;
  ClosedWindows(const ClosedWindows&) = delete;
  ClosedWindows& operator=(const ClosedWindows&) = delete;
  ~ClosedWindows() {
    for (const HWND window : m_windows) EnableWindow(window, TRUE);
  }

  void Close(HWND window) {
    if (IsWindowEnabled(window) == 0) return;
    EnableWindow(window, FALSE);
    m_windows.push_back(window);
  }

 private:
  std::vector<HWND> m_windows;
};

UINT PictureOf(platform::MessageIcon icon) {
  switch (icon) {
    case platform::MessageIcon::Information:
      return MB_ICONINFORMATION;
    case platform::MessageIcon::Question:
      return MB_ICONQUESTION;
    case platform::MessageIcon::None:
      break;
  }
  return 0;
}

/// Returns false at the end of the program, which the loop around the work has to see.
bool HandOn(MSG& message) {
  if (message.message == WM_QUIT) {
    PostQuitMessage(static_cast<int>(message.wParam));
    return false;
  }
  Dispatch(message);
  return true;
}

void PaintWindows() {
  MSG message{};
  for (int painted = 0; painted < kMostPaintings; ++painted)
    if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_PAINT | PM_QS_SENDMESSAGE) == 0 || !HandOn(message))
      return;
}

void HandleInputOf(HWND splash) {
  MSG message{};
  const auto waits = [&](UINT first, UINT last) {
    return IsWindowVisible(splash) != 0 && PeekMessageW(&message, splash, first, last, PM_REMOVE) != 0;
  };
  while (waits(WM_KEYFIRST, WM_KEYLAST) || waits(WM_MOUSEFIRST, WM_MOUSELAST))
    if (!HandOn(message)) return;
}

bool IsSplash(HWND window) {
  return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0 && IsWindowVisible(window) != 0;
}

}  // namespace

WindowsWindowing::WindowsWindowing() {
  // A program that only paints for some seconds is at work and not hung: its windows stay its own.
  DisableProcessWindowsGhosting();
}

void WindowsWindowing::Register(FormPresenter& presenter) {
  m_presenters[&presenter.Form()] = &presenter;
}

void WindowsWindowing::Forget(FormPresenter& presenter) {
  m_presenters.erase(&presenter.Form());
}

void WindowsWindowing::EndSession() {
  m_sessionEnds = true;
  CloseOpenQuestion();
}

MessageAnswer WindowsWindowing::ShowMessage(const Message& message) {
  const bool question = message.buttons == platform::MessageButtons::YesNo;
  if (m_sessionEnds) return question ? MessageAnswer::No : MessageAnswer::Ok;
  const ArrowPointer arrow;
  const HWND owner = OwnerOfBox();
  int answer = 0;
  {
    ClosedWindows closed;
    for (const auto& [form, presenter] : m_presenters)
      if (presenter->Window().Handle() != owner) closed.Close(presenter->Window().Handle());
    const UINT style = (question ? MB_YESNO : MB_OK) | PictureOf(message.icon) | MB_SETFOREGROUND |
                       (ShownSplash() != nullptr ? MB_TOPMOST : 0);
    const BoxPlace place(ShownSplash());
    answer = MessageBoxW(owner, ShownText(message.text).c_str(), ShownText(message.title).c_str(), style);
  }
  if (!question) return MessageAnswer::Ok;
  return answer == IDYES ? MessageAnswer::Yes : MessageAnswer::No;
}

void WindowsWindowing::ShowAbout(const platform::About& about) {
  if (m_sessionEnds) return;
  const ArrowPointer arrow;
  AboutBox box(about, OwnerOfBox());
  box.Presenter().ShowModal();
}

void WindowsWindowing::Beep() {
  MessageBeep(MB_OK);
}

void WindowsWindowing::ProcessPendingMessages() {
  if (m_lastPainting && GetTickCount64() - *m_lastPainting < kBetweenPaintingsMilliseconds) return;
  const controls::WorkScope work;
  LateShow::ShowWhatLasts();
  PaintWindows();
  if (const HWND splash = ShownSplash()) HandleInputOf(splash);
  m_lastPainting = GetTickCount64();
}

HWND WindowsWindowing::OwnerOfBox() const {
  const HWND active = GetActiveWindow();
  if (active != nullptr && IsWindowVisible(active) != 0) return active;
  // Another program is in front.
  if (const HWND question = OpenQuestion()) return question;
  if (const HWND splash = ShownSplash()) return splash;
  for (const auto& [form, presenter] : m_presenters)
    if (IsWindowVisible(presenter->Window().Handle()) != 0) return presenter->Window().Handle();
  return nullptr;
}

HWND WindowsWindowing::ShownSplash() const {
  const auto found = std::find_if(m_presenters.begin(), m_presenters.end(),
                                  [](const auto& presenter) { return IsSplash(presenter.second->Window().Handle()); });
  return found == m_presenters.end() ? nullptr : found->second->Window().Handle();
}

void WindowsWindowing::ShowModal(controls::Form& form) {
  FormPresenter* presenter = Find(form);
  if (presenter == nullptr || m_sessionEnds) return;
  const ArrowPointer arrow;
  presenter->ShowModal();
}

void WindowsWindowing::PostMessage(controls::Form& form, int message) {
  FormPresenter* presenter = Find(form);
  if (presenter == nullptr) return;
  if (message == platform::kWmClose) presenter->CloseWhenAnswered();
  if (message == platform::kWmUser) PostMessageW(presenter->Window().Handle(), WM_NULL, 0, 0);
}

void WindowsWindowing::SetForegroundWindow(controls::Form& form) {
  if (FormPresenter* presenter = Find(form)) presenter->BringToFront();
}

void WindowsWindowing::PopupMenu(controls::Form& form, controls::Menu& menu, double x, double y) {
  FormPresenter* presenter = Find(form);
  if (presenter == nullptr) return;
  const UINT dpi = GetDpiForWindow(presenter->Window().Handle());
  POINT at{ToPixels(x, dpi), ToPixels(y, dpi)};
  ClientToScreen(presenter->Inside(), &at);
  Popup(presenter, menu, -1, at);
}

void WindowsWindowing::PopupMenuAtMouse(controls::Form& form, controls::Menu& menu, int defaultItem) {
  POINT at{};
  GetCursorPos(&at);
  Popup(Find(form), menu, defaultItem, at);
}

FormPresenter* WindowsWindowing::Find(const controls::Form& form) const {
  const auto found = m_presenters.find(&form);
  return found == m_presenters.end() ? nullptr : found->second;
}

void WindowsWindowing::Popup(FormPresenter* presenter, controls::Menu& menu, int defaultItem, POINT at) {
  if (presenter == nullptr || m_isPopupOpen) return;
  const ScopedValue open(m_isPopupOpen, true);
  m_popup = std::make_unique<MenuPresenter>(menu);
  m_popup->SetDefaultItem(defaultItem);
  const HWND window = presenter->Window().Handle();
  // A menu of a window that is not in front stays open when the user clicks elsewhere (documentation of
  // TrackPopupMenu).
  ::SetForegroundWindow(window);
  const int chosen = TrackPopupMenuEx(m_popup->Handle(), TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, window, nullptr);
  PostMessageW(window, WM_NULL, 0, 0);
  if (chosen != 0) m_popup->Choose(static_cast<UINT>(chosen));
}

}  // namespace dayvane::widgets
