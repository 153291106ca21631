// SPDX-License-Identifier: MIT
#include "tests/windows/session/SessionTest.h"

namespace dayvane::session {
namespace {

class LifeSession : public SessionTest {
 protected:
  void SetUp() override {
    SessionTest::SetUp();
    StoreUsualOptions();
  }

  void CloseBox() { PostMessageW(Main(), WM_SYSCOMMAND, SC_CLOSE, 0); }
};

TEST_F(LifeSession, ExitEndsTheProgramWellAndTheNextStartIsAsItWas) {
  Start();
  ChooseMenu("VF");
  ExpectSoon(std::string("Dayvane - Favorites"), [&] { return Title(); });
  SetWindowPos(Main(), nullptr, 40, 50, 700, 480, SWP_NOZORDER);
  RECT before{};
  WaitUntil([&] { return GetWindowRect(Main(), &before) != 0 && before.right - before.left == 700; }, "the new size");
  End();
  EXPECT_EQ(Setting("View", "Data"), "1");
  EXPECT_EQ(Setting("Window", "Visible"), "True");
  Start();
  EXPECT_EQ(Title(), "Dayvane - Favorites");
  RECT after{};
  GetWindowRect(Main(), &after);
  EXPECT_EQ(after.left, before.left);
  EXPECT_EQ(after.top, before.top);
  EXPECT_EQ(after.right, before.right);
  EXPECT_EQ(after.bottom, before.bottom);
}

TEST_F(LifeSession, TheCloseBoxHidesTheWindowAndTheProgramGoesOn) {
  Start();
  CloseBox();
  ExpectSoon(false, [&] { return IsShown(Main()); });
  OpenDocument("Report.txt");
  ExpectSoon(true, [&] { return IsFiled("Report.txt", 0); });
  EXPECT_TRUE(Program().Runs());
}

TEST_F(LifeSession, TheTaskManagersCloseEndsTheProgramAndSaves) {
  Start();
  PostMessageW(Main(), WM_CLOSE, 0, 0);
  EXPECT_EQ(Program().WaitForEnd(), 0U);
  EXPECT_EQ(Setting("Window", "Visible"), "True");
}

TEST_F(LifeSession, TheEndOfTheSessionSavesAndEndsTheProgram) {
  Start();
  EXPECT_NE(SendMessageW(Main(), WM_QUERYENDSESSION, 0, 0), 0);
  SendMessageW(Main(), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(Program().WaitForEnd(), 0U);
  EXPECT_EQ(Setting("View", "Data"), "0");
}

TEST_F(LifeSession, TheEndOfTheSessionIsHeldUpByNoBox) {
  Start();
  PressTool(kFindButton);
  Program().WaitForBox();
  SendMessageW(Main(), WM_QUERYENDSESSION, 0, 0);
  SendMessageW(Main(), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(Program().WaitForEnd(), 0U);
}

TEST_F(LifeSession, AWindowThatIsHiddenAtTheEndIsHiddenAtTheNextStart) {
  Start();
  CloseBox();
  ExpectSoon(false, [&] { return IsShown(Main()); });
  SendMessageW(Main(), WM_QUERYENDSESSION, 0, 0);
  SendMessageW(Main(), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(Program().WaitForEnd(), 0U);
  EXPECT_EQ(Setting("Window", "Visible"), "False");
}

}  // namespace
}  // namespace dayvane::session
