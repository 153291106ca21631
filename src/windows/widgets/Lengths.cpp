// SPDX-License-Identifier: MIT
#include "windows/widgets/Lengths.h"

#include <algorithm>
#include <cmath>

#include "controls/Control.h"

namespace dayvane::widgets {

int ToPixels(double twips, UINT dpi) {
  constexpr double kGreatest = 32767;  // windows are told their sizes in 16 bits
  const double pixels = std::round(twips * dpi / kTwipsPerInch);
  return std::isnan(pixels) ? 0 : static_cast<int>(std::clamp(pixels, -kGreatest, kGreatest));
}

double ToTwips(int pixels, UINT dpi) {
  return pixels * kTwipsPerInch / dpi;
}

RECT PixelRect(const controls::Control& control, UINT dpi) {
  const int left = ToPixels(control.Left(), dpi);
  const int top = ToPixels(control.Top(), dpi);
  return {left, top, left + ToPixels(control.Width(), dpi), top + ToPixels(control.Height(), dpi)};
}

void MoveControl(controls::Control& control, const RECT& pixels, UINT dpi) {
  control.Move(ToTwips(pixels.left, dpi), ToTwips(pixels.top, dpi), ToTwips(pixels.right - pixels.left, dpi),
               ToTwips(pixels.bottom - pixels.top, dpi));
}

}  // namespace dayvane::widgets
