// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "linux/forms/ScreenFit.h"

namespace dayvane::widgets {
namespace {

constexpr QRect kScreen{0, 30, 1024, 570};
constexpr QSize kFrame{10, 36};

TEST(FitToScreen, APlaceThatFitsIsKept) {
  EXPECT_EQ(FitToScreen({100, 60, 400, 300}, kScreen, kFrame), QRect(100, 60, 400, 300));
}

TEST(FitToScreen, AWindowLargerThanTheScreenFillsItWithItsFrame) {
  EXPECT_EQ(FitToScreen({0, 30, 2000, 2000}, kScreen, kFrame), QRect(0, 30, 1014, 534));
}

TEST(FitToScreen, AWindowPastTheRightAndBottomMovesBack) {
  EXPECT_EQ(FitToScreen({900, 500, 400, 300}, kScreen, kFrame), QRect(614, 264, 400, 300));
}

TEST(FitToScreen, AWindowAboveTheScreenCanBeTakenByItsTitle) {
  EXPECT_EQ(FitToScreen({-500, -500, 400, 300}, kScreen, kFrame), QRect(0, 30, 400, 300));
}

}  // namespace
}  // namespace dayvane::widgets
