// SPDX-License-Identifier: MIT
#include "linux/widgets/Lengths.h"

#include <QWidget>
#include <algorithm>
#include <cmath>

#include "controls/Control.h"

namespace dayvane::widgets {

namespace {

constexpr double kGreatestPixels = 100'000;

}  // namespace

int ToPixels(double twips, const QWidget& on) {
  const double pixels = twips * on.logicalDpiX() / kTwipsPerInch;
  return std::isnan(pixels) ? 0 : static_cast<int>(std::lround(std::clamp(pixels, -kGreatestPixels, kGreatestPixels)));
}

double ToTwips(int pixels, const QWidget& on) {
  return pixels * kTwipsPerInch / on.logicalDpiX();
}

QRect PixelRect(const controls::Control& control, const QWidget& on) {
  return {ToPixels(control.Left(), on), ToPixels(control.Top(), on), ToPixels(control.Width(), on),
          ToPixels(control.Height(), on)};
}

void MoveControl(controls::Control& control, const QRect& pixels, const QWidget& on) {
  control.Move(ToTwips(pixels.x(), on), ToTwips(pixels.y(), on), ToTwips(pixels.width(), on),
               ToTwips(pixels.height(), on));
}

}  // namespace dayvane::widgets
