// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/FSplash.h"

namespace dayvane {
namespace {

class FSplashTest : public ::testing::Test {
 protected:
  static ProgramInfo Info() {
    return {"Dayvane", "Korvath", "Copyright 2026", "Free software", 1, 0, 12, "https://dayvane.example"};
  }

  FSplashTest() { splash.Show(); }

  FSplash splash{Info()};
};

TEST_F(FSplashTest, TheProgramTellsItsNameVersionMakerAndRights) {
  EXPECT_EQ(splash.lblProductName.Caption(), "Dayvane");
  EXPECT_EQ(splash.lblVersion.Caption(), "Version 1.0.12");
  EXPECT_EQ(splash.lblCompany.Caption(), "Korvath");
  EXPECT_EQ(splash.lblCopyright.Caption(), "Copyright 2026");
  EXPECT_EQ(splash.lblWarning.Caption(), "Free software");
}

TEST_F(FSplashTest, TheLogoIsPicture101) {
  EXPECT_EQ(splash.imgLogo.Picture(), 101);
}

TEST_F(FSplashTest, AClickClosesIt) {
  splash.Click();
  EXPECT_TRUE(splash.form.IsUnloaded());
  EXPECT_FALSE(splash.form.Visible());
}

TEST_F(FSplashTest, AClickOnTheLogoClosesIt) {
  splash.imgLogo.Click.Raise();
  EXPECT_TRUE(splash.form.IsUnloaded());
}

TEST_F(FSplashTest, AnyKeyClosesIt) {
  constexpr int kLetterA = 65;
  splash.form.KeyUp.Raise(kLetterA, 0);
  EXPECT_TRUE(splash.form.IsUnloaded());
}

TEST_F(FSplashTest, ItMayBeClosedTwice) {
  splash.Click();
  splash.Unload();
  EXPECT_TRUE(splash.form.IsUnloaded());
}

}  // namespace
}  // namespace dayvane
