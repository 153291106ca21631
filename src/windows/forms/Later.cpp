// SPDX-License-Identifier: MIT
#include "windows/forms/Later.h"

#include <utility>

namespace dayvane::widgets {

namespace {

constexpr UINT kDoOne = WM_APP;

}  // namespace

Later::Later() : Window({.className = L"Dayvane.Later", .parent = HWND_MESSAGE}) {}

void Later::Do(std::function<void()> act) {
  m_acts.push_back(std::move(act));
  PostMessageW(Handle(), kDoOne, 0, 0);
}

LRESULT Later::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != kDoOne) return Window::OnMessage(message, wParam, lParam);
  if (m_acts.empty()) return 0;
  const auto act = std::move(m_acts.front());
  m_acts.pop_front();
  act();
  return 0;
}

}  // namespace dayvane::widgets
