// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <limits>

#include "controls/SimpleControls.h"
#include "windows/widgets/Lengths.h"

namespace dayvane::widgets {
namespace {

TEST(WindowsLengths, AnInchHasThePixelsOfItsScreen) {
  EXPECT_EQ(ToPixels(1440, 96), 96);
  EXPECT_EQ(ToPixels(1440, 144), 144);
  EXPECT_DOUBLE_EQ(ToTwips(144, 144), 1440);
}

TEST(WindowsLengths, ALengthBeyondAnyScreenBecomesTheGreatestThatAWindowHas) {
  EXPECT_EQ(ToPixels(1e300, 96), 32767);
  EXPECT_EQ(ToPixels(-1e300, 96), -32767);
  EXPECT_EQ(ToPixels(std::numeric_limits<double>::quiet_NaN(), 96), 0);
}

TEST(WindowsLengths, AControlMovedToPixelsLiesThere) {
  controls::Label control;
  MoveControl(control, {10, 20, 110, 50}, 120);
  const RECT place = PixelRect(control, 120);
  EXPECT_EQ(place.left, 10);
  EXPECT_EQ(place.top, 20);
  EXPECT_EQ(place.right, 110);
  EXPECT_EQ(place.bottom, 50);
}

}  // namespace
}  // namespace dayvane::widgets
