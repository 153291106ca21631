// SPDX-License-Identifier: MIT
#include <QApplication>
#include <gtest/gtest.h>

#include "linux/forms/Appearance.h"

namespace dayvane::widgets {
namespace {

TEST(Appearance, WindowsAreDarkWhenTheUserWantsItAndLightAgain) {
  const QColor light = QApplication::palette().color(QPalette::Window);
  Appearance appearance;

  appearance.SetDark(true);
  EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), light.lightness());

  appearance.SetDark(false);
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), light);
}

/// WCAG 2.1, relative luminance and contrast ratio.
double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
  const double first = Luminance(a);
  const double second = Luminance(b);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

TEST(Appearance, HighContrastIsKeptWhenTheUserChangesBetweenLightAndDark) {
  const QPalette usual = QApplication::palette();
  Appearance appearance;

  appearance.SetHighContrast(true);
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(Qt::white));
  appearance.SetDark(true);
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(Qt::black));

  appearance.SetDark(false);
  appearance.SetHighContrast(false);
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), usual.color(QPalette::Window));
}

TEST(HighContrastPalette, TextsStandOutAsMuchAsTheyCan) {
  for (const bool dark : {false, true}) {
    const QPalette palette = HighContrastPalette(dark);
    EXPECT_EQ(Contrast(palette.color(QPalette::Text), palette.color(QPalette::Base)), 21);
    EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 10);
    EXPECT_GE(Contrast(palette.color(QPalette::Link), palette.color(QPalette::Base)), 10);
  }
}

TEST(DarkPalette, TextsCanBeRead) {
  const QPalette palette = DarkPalette();

  EXPECT_GE(Contrast(palette.color(QPalette::Text), palette.color(QPalette::Base)), 7);
  EXPECT_GE(Contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)), 7);
  EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 4);
  EXPECT_GE(Contrast(palette.color(QPalette::Link), palette.color(QPalette::Base)), 4.5);
}

}  // namespace
}  // namespace dayvane::widgets
