// SPDX-License-Identifier: MIT
#include "windows/forms/TextColumn.h"

#include <algorithm>

namespace dayvane::widgets {

void TextColumn::SetLook(const SharedLook& look) const {
  for (const Line& line : m_lines) line.text.SetLook(look);
}

SIZE TextColumn::SizeWithin(int width, const Look& look) const {
  SIZE size{};
  for (const Line& line : m_lines) {
    const SIZE text = line.text.SizeWithin(width);
    size.cx = std::max(size.cx, text.cx);
    size.cy += look.Pixels(line.gapAbove) + text.cy;
  }
  return size;
}

void TextColumn::Place(POINT corner, int width, const Look& look) const {
  LONG top = corner.y;
  for (const Line& line : m_lines) {
    const SIZE text = line.text.SizeWithin(width);
    top += look.Pixels(line.gapAbove);
    SetWindowPos(line.text.Handle(), nullptr, corner.x, top, width, text.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    top += text.cy;
  }
}

}  // namespace dayvane::widgets
