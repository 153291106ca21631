// SPDX-License-Identifier: MIT
#include "windows/forms/BoxPlace.h"

#include <utility>

#include "windows/forms/ScreenFit.h"

namespace dayvane::widgets {

namespace {

constexpr LONG kGapBelow = 12;  // pixels of any screen: only that the two are seen apart

BoxPlace*& BoxPlaceInUse() {
  static BoxPlace* inUse = nullptr;
  return inUse;
}

}  // namespace

BoxPlace::BoxPlace(HWND window) : m_window(window), m_before(std::exchange(BoxPlaceInUse(), this)) {
  if (window != nullptr) m_hook = SetWindowsHookExW(WH_CBT, &BoxPlace::Hear, nullptr, GetCurrentThreadId());
}

BoxPlace::~BoxPlace() {
  if (m_hook != nullptr) UnhookWindowsHookEx(m_hook);
  BoxPlaceInUse() = m_before;
}

LRESULT CALLBACK BoxPlace::Hear(int code, WPARAM wParam, LPARAM lParam) {
  // The first window that is activated is the box, which has its size by then.
  if (code == HCBT_ACTIVATE && BoxPlaceInUse() != nullptr) BoxPlaceInUse()->Place(reinterpret_cast<HWND>(wParam));
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

void BoxPlace::Place(HWND box) {
  const HWND window = std::exchange(m_window, nullptr);
  if (window == nullptr || box == window) return;
  RECT over{};
  RECT place{};
  GetWindowRect(window, &over);
  GetWindowRect(box, &place);
  const LONG left = CentredIn(over, {place.right - place.left, place.bottom - place.top}).left;
  OffsetRect(&place, left - place.left, over.bottom + kGapBelow - place.top);
  const RECT fitted = FitToScreen(place, AvailableScreenFor(over));
  if (EqualRect(&fitted, &place) != 0)
    SetWindowPos(box, nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace dayvane::widgets
