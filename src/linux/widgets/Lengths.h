// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

class QWidget;

namespace dayvane::controls {
class Control;
}

/// Controls measure in twips, 1440 to the inch; widgets in the screen's logical pixels. The widget tells the screen.
namespace dayvane::widgets {

inline constexpr double kTwipsPerInch = 1440;

/// Lengths beyond any screen, as a damaged setting may hold, become the greatest that Qt's layouts stand.
int ToPixels(double twips, const QWidget& on);
double ToTwips(int pixels, const QWidget& on);

/// Where a control lies in its container.
QRect PixelRect(const controls::Control& control, const QWidget& on);

/// Gives a control the place of a rectangle in its container.
void MoveControl(controls::Control& control, const QRect& pixels, const QWidget& on);

}  // namespace dayvane::widgets
