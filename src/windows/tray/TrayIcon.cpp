// SPDX-License-Identifier: MIT
#include "windows/tray/TrayIcon.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "controls/Keys.h"
#include "windows/widgets/Pictures.h"

namespace dayvane::widgets {

namespace {

constexpr UINT kIconMessage = WM_APP + 1;
constexpr UINT kIconId = 1;
constexpr UINT_PTR kTryAgainTimer = 1;
constexpr UINT kTryAgainMilliseconds = 3000;

/// Told to all windows at the top when the task bar has started (documentation of Shell_NotifyIcon).
UINT TaskBarCreated() {
  static const UINT message = RegisterWindowMessageW(L"TaskbarCreated");
  return message;
}

int ButtonOf(LPARAM message) {
  switch (message) {
    case WM_LBUTTONUP:
      return controls::kLeftButton;
    case WM_RBUTTONUP:
      return controls::kRightButton;
    case WM_MBUTTONUP:
      return controls::kMiddleButton;
    default:
      return 0;
  }
}

}  // namespace

std::wstring CutToUnits(const std::wstring& text, std::size_t most) {
  if (text.size() <= most) return text;
  const bool isHalf = most > 0 && IS_HIGH_SURROGATE(text[most - 1]);
  return text.substr(0, isHalf ? most - 1 : most);
}

// A window at the top, though it never shows: others do not hear of the task bar.
TrayIcon::TrayIcon(Shell shell)
    : Window({.className = L"Dayvane.Tray", .style = WS_POPUP}),
      m_shell(shell ? std::move(shell)
                    : [](DWORD message, NOTIFYICONDATAW& data) { return Shell_NotifyIconW(message, &data) != FALSE; }) {
  m_isReady = true;
}

TrayIcon::~TrayIcon() {
  m_isReady = false;
  if (!m_isThere) return;
  NOTIFYICONDATAW data = Data();
  m_shell(NIM_DELETE, data);
}

NOTIFYICONDATAW TrayIcon::Data() const {
  NOTIFYICONDATAW data{};
  data.cbSize = sizeof data;
  data.hWnd = Handle();
  data.uID = kIconId;
  data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
  data.uCallbackMessage = kIconMessage;
  data.hIcon = m_icon.get();
  const std::wstring tip = CutToUnits(m_tip, std::size(data.szTip) - 1);
  std::copy(tip.begin(), tip.end(), data.szTip);
  return data;
}

void TrayIcon::Show(int picture, const std::string& tip) {
  if (picture != m_picture || m_icon == nullptr)
    m_icon = PictureIcon(picture, GetSystemMetricsForDpi(SM_CXSMICON, GetDpiForWindow(Handle())));
  m_picture = picture;
  m_tip = ShownText(tip);
  m_isWanted = true;
  Add();
}

void TrayIcon::Hide() {
  m_isWanted = false;
  KillTimer(Handle(), kTryAgainTimer);
  NOTIFYICONDATAW data = Data();
  if (m_isThere) m_shell(NIM_DELETE, data);
  SetThere(false);
}

void TrayIcon::Add() {
  NOTIFYICONDATAW data = Data();
  // A shell that was too busy to answer may have added it all the same.
  const bool isThere = m_shell(NIM_MODIFY, data) || m_shell(NIM_ADD, data);
  if (isThere)
    KillTimer(Handle(), kTryAgainTimer);
  else
    SetTimer(Handle(), kTryAgainTimer, kTryAgainMilliseconds, nullptr);
  SetThere(isThere);
}

void TrayIcon::SetThere(bool isThere) {
  if (std::exchange(m_isThere, isThere) != isThere) Changed.Raise();
}

LRESULT TrayIcon::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!m_isReady) return Window::OnMessage(message, wParam, lParam);
  if (message == kIconMessage) {
    if (const int button = ButtonOf(lParam)) MouseUp.Raise(button);
    return 0;
  }
  const bool isTime = message == TaskBarCreated() || (message == WM_TIMER && wParam == kTryAgainTimer);
  if (!isTime) return Window::OnMessage(message, wParam, lParam);
  if (m_isWanted) Add();
  return 0;
}

}  // namespace dayvane::widgets
