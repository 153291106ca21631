// SPDX-License-Identifier: MIT
#include "windows/help/PageFont.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace dayvane::help {

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kSmallestPoints = 5;

/// Widths are measured in letters so many times as large, so that their rounding does not add up.
constexpr int kFineness = 8;

}  // namespace

PageFont::PageFont(const widgets::Look& look, int steps) : m_screen(GetDC(nullptr)) {
  LOGFONTW font{};
  GetObjectW(look.TextFont(), sizeof font, &font);
  m_name = font.lfFaceName;
  const double points = std::abs(font.lfHeight) * kPointsPerInch / look.Dpi();
  m_points = std::max(points + steps, kSmallestPoints);
  font.lfHeight = -static_cast<LONG>(std::lround(m_points * kFineness * USER_DEFAULT_SCREEN_DPI / kPointsPerInch));
  font.lfWidth = 0;
  m_normal.reset(CreateFontIndirectW(&font));
  font.lfWeight = FW_BOLD;
  m_bold.reset(CreateFontIndirectW(&font));
}

PageFont::~PageFont() {
  ReleaseDC(nullptr, m_screen);
}

int PageFont::WidthOf(const std::wstring& text, bool isBold) const {
  const HGDIOBJ old = SelectObject(m_screen, isBold ? m_bold.get() : m_normal.get());
  SIZE size{};
  GetTextExtentPoint32W(m_screen, text.data(), static_cast<int>(text.size()), &size);
  SelectObject(m_screen, old);
  return static_cast<int>(size.cx + kFineness - 1) / kFineness;
}

}  // namespace dayvane::help
