// SPDX-License-Identifier: MIT
#include "windows/tray/WayBack.h"

#include <utility>

namespace dayvane::widgets {

namespace {

constexpr UINT_PTR kPatienceTimer = 1;

}  // namespace

WayBack::WayBack(controls::Form& form, TrayIcon& tray, std::chrono::milliseconds patience)
    : Window({.className = L"Dayvane.WayBack", .parent = HWND_MESSAGE}),
      m_form(form),
      m_tray(tray),
      m_patienceMilliseconds(static_cast<UINT>(patience.count())) {
  m_isReady = true;
  m_connections.push_back(form.Changed.ConnectScoped([this] { Follow(); }));
  m_connections.push_back(tray.Changed.ConnectScoped([this] { Follow(); }));
}

void WayBack::Follow() {
  const bool atOnce = m_wasShownWithoutTray;
  m_wasShownWithoutTray = !m_tray.IsThere() && m_form.Visible();
  if (m_tray.IsThere() || m_form.Visible() || m_form.IsUnloaded()) {
    if (std::exchange(m_isWaiting, false)) KillTimer(Handle(), kPatienceTimer);
    if (m_standIn.IsShown()) m_standIn.Hide();
    return;
  }
  if (atOnce) return Offer();
  if (m_standIn.IsShown() || m_isWaiting) return;
  m_isWaiting = SetTimer(Handle(), kPatienceTimer, m_patienceMilliseconds, nullptr) != 0;
  if (!m_isWaiting) Offer();
}

void WayBack::Offer() {
  if (std::exchange(m_isWaiting, false)) KillTimer(Handle(), kPatienceTimer);
  if (!m_standIn.IsShown()) m_standIn.ShowInTaskBar();
}

LRESULT WayBack::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!m_isReady || message != WM_TIMER) return Window::OnMessage(message, wParam, lParam);
  Offer();
  return 0;
}

}  // namespace dayvane::widgets
