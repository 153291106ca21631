// SPDX-License-Identifier: MIT
#include "windows/forms/Placement.h"

#include "windows/widgets/Lengths.h"

namespace dayvane::widgets {

void Placement::Add(controls::Control& control, HWND window) {
  m_children.push_back(
      {control, window, control.Changed.ConnectScoped([this, &control, window] { Place(control, window); })});
  Place(control, window);
}

void Placement::PlaceAll() const {
  for (const Child& child : m_children) Place(child.control, child.window);
}

void Placement::Place(const controls::Control& control, HWND window) const {
  RECT room{};
  GetClientRect(m_container, &room);
  const RECT wanted = PixelRect(control, m_look->Dpi());
  RECT place{};
  if (IntersectRect(&place, &wanted, &room) == 0) place = {wanted.left, wanted.top, wanted.left, wanted.top};
  SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace dayvane::widgets
