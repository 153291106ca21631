// SPDX-License-Identifier: MIT
#include <stdexcept>

#include "tests/windows/session/SessionTest.h"

namespace dayvane::session {
namespace {

/// With the one icon of a notification area that lies in the screen's lower right corner.
class TraySession : public SessionTest {
 protected:
  void SetUp() override {
    SessionTest::SetUp();
    StoreUsualOptions();
    Start();
  }

  static POINT Icon() { return {GetSystemMetrics(SM_CXSCREEN) - 14, GetSystemMetrics(SM_CYSCREEN) - 15}; }

  /// The area takes an icon in in its own time, so the first clicks may meet nothing.
  void ActUntil(void (*act)(POINT), const std::function<bool()>& hasActed) {
    constexpr std::chrono::seconds kPatience(2);
    for (int attempt = 0; attempt < 5; ++attempt) {
      act(Icon());
      try {
        return WaitUntil(hasActed, "the icon to act", kPatience);
      } catch (const std::runtime_error&) {  // tried again
      }
    }
    FAIL() << "the icon does nothing";
  }

  void ChooseFromIcon(char accessKey) {
    ActUntil(&RightClick, [&] { return HasOpenMenu(); });
    PressKey(static_cast<WORD>(accessKey));
  }
};

TEST_F(TraySession, AClickOnTheIconHidesTheWindowAndTheNextBringsItBack) {
  ActUntil(&Click, [&] { return !IsShown(Main()); });
  EXPECT_TRUE(Program().Runs());
  ActUntil(&Click, [&] { return IsShown(Main()); });
}

TEST_F(TraySession, TheIconsMenuHidesTheWindowAndShowsIt) {
  ChooseFromIcon('H');
  ExpectSoon(false, [&] { return IsShown(Main()); });
  ChooseFromIcon('S');
  ExpectSoon(true, [&] { return IsShown(Main()); });
}

TEST_F(TraySession, TheIconsMenuEndsTheProgramThatIsHidden) {
  ActUntil(&Click, [&] { return !IsShown(Main()); });
  ChooseFromIcon('X');
  EXPECT_EQ(Program().WaitForEnd(), 0U);
  EXPECT_EQ(Setting("Window", "Visible"), "False");
}

}  // namespace
}  // namespace dayvane::session
