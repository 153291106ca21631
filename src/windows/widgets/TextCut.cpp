// SPDX-License-Identifier: MIT
#include "windows/widgets/TextCut.h"

#include "windows/widgets/Look.h"

namespace dayvane::widgets {

namespace {

/// The text with this many of its units left, in halves, none of them half of a pair.
std::wstring WithUnits(const std::wstring& text, std::size_t units) {
  std::size_t head = (units + 1) / 2;
  std::size_t tail = text.size() - units / 2;
  if (head > 0 && IS_HIGH_SURROGATE(text[head - 1])) --head;
  if (tail < text.size() && IS_LOW_SURROGATE(text[tail])) ++tail;
  return text.substr(0, head) + L'\x2026' + text.substr(tail);
}

}  // namespace

std::wstring CutInTheMiddle(const std::wstring& text, HFONT font, int width) {
  if (TextSize(font, text.c_str()).cx <= width) return text;
  std::size_t fits = 0;
  std::size_t tooMany = text.size();
  while (tooMany - fits > 1) {
    const std::size_t units = fits + (tooMany - fits) / 2;
    (TextSize(font, WithUnits(text, units).c_str()).cx <= width ? fits : tooMany) = units;
  }
  return WithUnits(text, fits);
}

}  // namespace dayvane::widgets
