// SPDX-License-Identifier: MIT
#include "windows/help/HelpStyle.h"

#include <cmath>
#include <cstdlib>

namespace dayvane::help {

namespace {

/// 0 to 255, as bright as the eye has it.
int Brightness(COLORREF colour) {
  return (GetRValue(colour) * 11 + GetGValue(colour) * 16 + GetBValue(colour) * 5) / 32;
}

bool WantsHighContrast() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != 0 &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

/// The system's own, unless it cannot be read on the background.
COLORREF LinkColour(COLORREF background, bool isDark) {
  const COLORREF link = GetSysColor(COLOR_HOTLIGHT);
  const bool isReadable = std::abs(Brightness(link) - Brightness(background)) > 80;
  if (isReadable) return link;
  return isDark ? RGB(0x7d, 0xb4, 0xff) : RGB(0x1f, 0x56, 0xab);
}

}  // namespace

COLORREF Mixed(COLORREF a, COLORREF b, double shareOfB) {
  const auto mix = [&](int x, int y) { return static_cast<BYTE>(std::lround(x + (y - x) * shareOfB)); };
  return RGB(mix(GetRValue(a), GetRValue(b)), mix(GetGValue(a), GetGValue(b)), mix(GetBValue(a), GetBValue(b)));
}

HelpColours ColoursOf(COLORREF background, COLORREF text, bool highContrast) {
  if (highContrast) return {background, text, text, GetSysColor(COLOR_HOTLIGHT), text, background, text};
  const bool isDark = Brightness(background) < Brightness(text);
  const COLORREF accent = isDark ? RGB(0x9c, 0xc3, 0xff) : RGB(0x1f, 0x4f, 0x9e);
  return {background,
          text,
          accent,
          LinkColour(background, isDark),
          Mixed(text, background, 0.3),
          Mixed(background, accent, 0.12),
          Mixed(background, text, 0.22)};
}

HelpColours ColoursOf(int background, int text) {
  return ColoursOf(GetSysColor(background), GetSysColor(text), WantsHighContrast());
}

}  // namespace dayvane::help
