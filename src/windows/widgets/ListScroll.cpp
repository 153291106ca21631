// SPDX-License-Identifier: MIT
#include "windows/widgets/ListScroll.h"

#include <algorithm>
#include <utility>

namespace dayvane::widgets {

namespace {

bool ShowsIcons(HWND list) {
  const LRESULT view = SendMessageW(list, LVM_GETVIEW, 0, 0);
  return view == LV_VIEW_ICON || view == LV_VIEW_SMALLICON;
}

bool ShowsDetails(HWND list) {
  return SendMessageW(list, LVM_GETVIEW, 0, 0) == LV_VIEW_DETAILS;
}

int FirstInView(HWND list) {
  return static_cast<int>(SendMessageW(list, LVM_GETTOPINDEX, 0, 0));
}

void EnsureVisible(HWND list, int row) {
  SendMessageW(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

/// The list scrolls no further than it must to bring a row into view: from its end that row is the first.
void ScrollToTop(HWND list, int row) {
  const auto count = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
  if (count == 0 || FirstInView(list) == row) return;
  EnsureVisible(list, count - 1);
  EnsureVisible(list, std::clamp(row, 0, count - 1));
}

POINT OriginOf(HWND list) {
  POINT origin{};
  SendMessageW(list, LVM_GETORIGIN, 0, reinterpret_cast<LPARAM>(&origin));
  return origin;
}

}  // namespace

void ListScroll::Remember(HWND list, std::string known, std::string selectedKey, int selected) {
  m_knownKey = std::move(known);
  m_selectedKey = std::move(selectedKey);
  RECT row{LVIR_BOUNDS, 0, 0, 0};
  RECT room{};
  RECT both{};
  GetClientRect(list, &room);
  m_selectionInView =
      selected >= 0 &&
      SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(selected), reinterpret_cast<LPARAM>(&row)) != 0 &&
      IntersectRect(&both, &row, &room) != 0;
  m_top = ShowsIcons(list) ? 0 : FirstInView(list);
  m_origin = ShowsIcons(list) ? OriginOf(list) : POINT{};
  m_sideways = ShowsDetails(list) ? GetScrollPos(list, SB_HORZ) : 0;
}

void ListScroll::Restore(HWND list, bool sameContents) const {
  if (ShowsIcons(list)) {
    const POINT now = OriginOf(list);
    const POINT wanted = sameContents ? m_origin : POINT{};
    SendMessageW(list, LVM_SCROLL, static_cast<WPARAM>(wanted.x - now.x), wanted.y - now.y);
    return;
  }
  ScrollToTop(list, sameContents ? m_top : 0);
  const int sideways = (sameContents ? m_sideways : 0) - GetScrollPos(list, SB_HORZ);
  if (ShowsDetails(list) && sideways != 0) SendMessageW(list, LVM_SCROLL, static_cast<WPARAM>(sideways), 0);
}

}  // namespace dayvane::widgets
