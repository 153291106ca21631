// SPDX-License-Identifier: MIT
#include "windows/widgets/TimerPresenter.h"

#include <algorithm>

#include "controls/Deferred.h"

namespace dayvane::widgets {

namespace {

constexpr UINT_PTR kTick = 1;

}  // namespace

TimerPresenter::TimerPresenter(controls::Timer& control)
    : Window({.className = L"Dayvane.Timer", .parent = HWND_MESSAGE}), m_control(control) {
  m_changed = control.Changed.ConnectScoped([this] { Show(); });
  Show();
}

void TimerPresenter::Show() {
  const int interval = m_control.Enabled() ? std::max(m_control.Interval(), 0) : 0;
  if (interval == m_shownInterval) return;
  m_shownInterval = interval;
  if (interval == 0)
    KillTimer(Handle(), kTick);
  else
    SetTimer(Handle(), kTick, static_cast<UINT>(interval), nullptr);
}

LRESULT TimerPresenter::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_TIMER) return Window::OnMessage(message, wParam, lParam);
  if (controls::IsAtWork()) return 0;
  const controls::BackgroundScope background;
  m_control.Fire();
  return 0;
}

}  // namespace dayvane::widgets
