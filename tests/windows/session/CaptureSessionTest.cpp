// SPDX-License-Identifier: MIT
#include "base/Text.h"
#include "tests/windows/session/SessionTest.h"

namespace dayvane::session {
namespace {

/// The first start of a user who has opened documents before.
class FirstRunSession : public SessionTest {
 protected:
  std::string Welcome(WORD answer) {
    LaunchFirstRun();
    return AnswerBox(answer);
  }
};

TEST_F(FirstRunSession, WelcomesTheUserAndStoresTheOptions) {
  EXPECT_EQ(
      Welcome(IDNO),
      "Welcome to Dayvane.\r\n\r\nWe suggest that you review the default settings\r\nby selecting the View|Options "
      "menu choice.\r\n\r\nWould you like to view the help file?");
  Program().WaitForWindow("Dayvane - Daily");
  EXPECT_EQ(Program().FindWindowOf("Dayvane Help"), nullptr);
  EXPECT_EQ(Setting("Options", "Favorites Threshold"), "3");
}

TEST_F(FirstRunSession, ShowsWhereToBeginAfterYes) {
  Welcome(IDYES);
  EXPECT_NE(Program().WaitForWindow("Getting started"), nullptr);
}

TEST_F(FirstRunSession, FilesWhatWasOpenedBefore) {
  OpenDocument("Report.txt", 3);
  Welcome(IDNO);
  Program().WaitForWindow("Dayvane - Daily");
  EXPECT_TRUE(IsFiled("Report.txt", 3));
}

class CaptureSession : public SessionTest {
 protected:
  void SetUp() override {
    SessionTest::SetUp();
    StoreUsualOptions();
  }
};

TEST_F(CaptureSession, ADocumentOpenedWhileTheProgramRunsIsFiledAndShown) {
  Start();
  OpenDocument("Report.txt");
  ExpectSoon(true, [&] { return IsFiled("Report.txt", 0); });
  ExpectSoon(std::size_t{4}, [&] { return Nodes(Tree()).size(); });
  ClickNode(DayName(0));
  ExpectSoon(std::vector<std::string>{"Report.txt"}, [&] { return Names(List()); });
  ExpectSoon(std::string("1 objects"), [&] { return StatusText(StatusBar()); });
}

TEST_F(CaptureSession, DocumentsWithNamesOfAnyScriptAreFiledAndShown) {
  const std::string name = "\u0391\u03bb\u03c6\u03b1 \u6587\u66f8.txt";
  OpenDocument(name);
  Start();
  EXPECT_TRUE(IsFiled(name, 0));
  ExpectSoon(std::vector<std::string>{name}, [&] { return Names(List()); });
}

TEST_F(CaptureSession, TheListTellsWhereADocumentLies) {
  OpenDocument("Report.txt");
  Start();
  ExpectSoon(std::size_t{1}, [&] { return Rows(List()).size(); });
  EXPECT_EQ(Rows(List()).front()[2], text::ToLower(Documents().Path()));
}

TEST_F(CaptureSession, ASuspendedProgramFilesNothingUntilItIsResumed) {
  Start();
  ChooseMenu("DU");
  OpenDocument("Report.txt");
  // Another program's start and end is longer than two ticks would be.
  const auto second = LaunchSecond();
  const HWND box = second->WaitForBox();
  EXPECT_EQ(BoxText(box), "Dayvane is already loaded.");
  PostMessageW(box, WM_COMMAND, IDOK, 0);
  EXPECT_EQ(second->WaitForEnd(), 0U);
  EXPECT_FALSE(IsFiled("Report.txt", 0));
  ChooseMenu("DR");
  ExpectSoon(true, [&] { return IsFiled("Report.txt", 0); });
}

TEST_F(CaptureSession, ALinkThatIsNoLinkStopsNothing) {
  OpenDocument("Report.txt");
  for (const std::string& bytes : {std::string(), std::string(91'000, 'x'), std::string("L\0\0\0", 4)})
    PutIntoRecentFolder("Damaged " + std::to_string(bytes.size()) + ".lnk", bytes);
  Start();
  ExpectSoon(true, [&] { return IsFiled("Report.txt", 0); });
  ExpectSoon(true, [&] { return RowOf(List(), "Report.txt") >= 0; });
}

}  // namespace
}  // namespace dayvane::session
