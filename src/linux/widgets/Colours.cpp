// SPDX-License-Identifier: MIT
#include "linux/widgets/Colours.h"

#include <cmath>

namespace dayvane::widgets {

bool IsDark(const QColor& background, const QColor& text) {
  return background.lightness() < text.lightness();
}

QColor Ink(const QPalette& palette, qreal strength) {
  const QColor base = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  const auto mix = [strength](int background, int ink) {
    return static_cast<int>(std::lround(background * (1 - strength) + ink * strength));
  };
  return {mix(base.red(), text.red()), mix(base.green(), text.green()), mix(base.blue(), text.blue())};
}

QColor MutedSelection(const QPalette& palette) {
  constexpr qreal kGrey = 0.18;
  return Ink(palette, kGrey);
}

}  // namespace dayvane::widgets
