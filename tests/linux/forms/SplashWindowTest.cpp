// SPDX-License-Identifier: MIT
#include <QLabel>
#include <QTest>
#include <gmock/gmock.h>

#include "linux/forms/SplashWindow.h"
#include "shell/FSplash.h"

namespace dayvane::widgets {
namespace {

class SplashWindowTest : public ::testing::Test {
 protected:
  SplashWindowTest() { m_splash.Show(); }

  FSplash m_splash{{"Dayvane", "Korvath", "Copyright 2026", "Free software.", 1, 0, 12, "https://dayvane.example"}};
  SplashWindow m_window{m_splash};
};

TEST_F(SplashWindowTest, ItIsAWindowWithoutAFrameInTheMiddleOfTheScreen) {
  EXPECT_EQ(m_window.windowType(), Qt::SplashScreen);
  const QRect screen = m_window.screen()->availableGeometry();
  EXPECT_LE((m_window.geometry().center() - screen.center()).manhattanLength(), 40);
}

TEST_F(SplashWindowTest, EveryTextIsShown) {
  QStringList texts;
  for (const QLabel* label : m_window.findChildren<QLabel*>()) texts << label->text();

  for (const char* text : {"Dayvane", "Version 1.0.12", "Korvath", "Copyright 2026", "Free software."})
    EXPECT_TRUE(texts.contains(QLatin1String(text))) << text;
}

TEST_F(SplashWindowTest, TheLogoIsShown) {
  EXPECT_TRUE(std::ranges::any_of(m_window.findChildren<QLabel*>(),
                                  [](const QLabel* label) { return !label->pixmap(Qt::ReturnByValue).isNull(); }));
}

TEST_F(SplashWindowTest, AClickOnATextClosesIt) {
  QTest::mouseClick(m_window.findChildren<QLabel*>().last(), Qt::LeftButton);

  EXPECT_FALSE(m_window.isVisible());
  EXPECT_TRUE(m_splash.form.IsUnloaded());
}

TEST_F(SplashWindowTest, AnyKeyClosesItWhenItIsReleased) {
  QTest::keyPress(&m_window, Qt::Key_Comma);
  EXPECT_TRUE(m_window.isVisible());

  QTest::keyRelease(&m_window, Qt::Key_Comma);
  EXPECT_FALSE(m_window.isVisible());
}

}  // namespace
}  // namespace dayvane::widgets
