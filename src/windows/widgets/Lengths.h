// SPDX-License-Identifier: MIT
#pragma once

#include "windows/files/Win32.h"

namespace dayvane::controls {
class Control;
}

/// Controls measure in twips, 1440 to the inch; windows in the pixels of their screen, of which `dpi` make an inch.
namespace dayvane::widgets {

inline constexpr double kTwipsPerInch = 1440;

/// Lengths beyond any screen, as a damaged setting may hold, become the greatest that windows have.
int ToPixels(double twips, UINT dpi);
double ToTwips(int pixels, UINT dpi);

/// Where a control lies in its container.
RECT PixelRect(const controls::Control& control, UINT dpi);

/// Gives a control the place of a rectangle in its container.
void MoveControl(controls::Control& control, const RECT& pixels, UINT dpi);

}  // namespace dayvane::widgets
