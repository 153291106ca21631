// SPDX-License-Identifier: MIT
#include "windows/forms/ScreenFit.h"

#include <algorithm>

namespace dayvane::widgets {

namespace {

RECT AvailableOf(HMONITOR screen) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  if (GetMonitorInfoW(screen, &info) != 0) return info.rcWork;
  return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

}  // namespace

RECT FitToScreen(const RECT& wanted, const RECT& available) {
  const LONG width = std::min(wanted.right - wanted.left, available.right - available.left);
  const LONG height = std::min(wanted.bottom - wanted.top, available.bottom - available.top);
  const LONG left = std::max(std::min(wanted.left, available.right - width), available.left);
  const LONG top = std::max(std::min(wanted.top, available.bottom - height), available.top);
  return {left, top, left + width, top + height};
}

RECT AvailableScreenFor(const RECT& wanted) {
  // A screen that merely lies near does not count, and the system has no word for that but none.
  const HMONITOR shown = MonitorFromRect(&wanted, MONITOR_DEFAULTTONULL);
  return AvailableOf(shown != nullptr ? shown : MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY));
}

RECT AvailableScreenAt(POINT point) {
  return AvailableOf(MonitorFromPoint(point, MONITOR_DEFAULTTONEAREST));
}

RECT CentredIn(const RECT& around, SIZE size) {
  const LONG left = around.left + (around.right - around.left - size.cx) / 2;
  const LONG top = around.top + (around.bottom - around.top - size.cy) / 2;
  return {left, top, left + size.cx, top + size.cy};
}

}  // namespace dayvane::widgets
