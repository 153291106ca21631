// SPDX-License-Identifier: MIT
#include "base/Text.h"
#include "tests/windows/session/SessionTest.h"

namespace dayvane::session {
namespace {

/// A week in which two documents were opened on two days each.
class MainWindowSession : public SessionTest {
 protected:
  void SetUp() override {
    SessionTest::SetUp();
    StoreUsualOptions();
    OpenDocument("Old.txt", 2);
    OpenDocument("Plan.png", 1);
    OpenDocument("Report.txt", 1);
    Start();
    OpenDocument("Plan.png");
    OpenDocument("Report.txt");
    ExpectSoon(true, [&] { return IsFiled("Report.txt", 0) && IsFiled("Plan.png", 0); });
    ExpectSoon(2, [&] { return RowCount(List()); });
  }
};

TEST_F(MainWindowSession, ADayClickedInTheTreeListsItsDocumentsAndIsChosenInTheCalendar) {
  ClickNode(DayName(2));
  ExpectSoon(std::vector<std::string>{"Old.txt"}, [&] { return Names(List()); });
  ExpectSoon(DayName(2), [&] {
    const int day = ChosenDay(Calendar()).wDay;
    return (day < 10 ? "0" : "") + std::to_string(day);
  });
}

TEST_F(MainWindowSession, ADayClickedInTheCalendarIsSelectedInTheTree) {
  ClickNode(DayName(2));
  ExpectSoon(DayName(2), [&] { return SelectedNode(Tree()); });
  Click(PlaceOfDay(Calendar(), std::stoi(DayName(1))));
  ExpectSoon(DayName(1), [&] { return SelectedNode(Tree()); });
  ExpectSoon(2, [&] { return RowCount(List()); });
}

TEST_F(MainWindowSession, TheFavoritesAreShownByTheMenuAndTheToolbar) {
  ChooseMenu("VF");
  ExpectSoon(std::string("Dayvane - Favorites"), [&] { return Title(); });
  EXPECT_TRUE(IsShown(Favorites()));
  EXPECT_EQ(Names(Favorites()).size(), 2U);
  EXPECT_EQ(text::Trim(Rows(Favorites()).front()[3]), "2");
  EXPECT_FALSE(CanPressTool(kFavoritesButton));
  PressTool(kDailyButton);
  ExpectSoon(std::string("Dayvane - Daily"), [&] { return Title(); });
  EXPECT_TRUE(IsShown(List()));
}

TEST_F(MainWindowSession, TheDocumentsAreShownInFourStylesByTheMenuAndTheToolbar) {
  const std::vector<std::pair<char, LRESULT>> styles{
      {'G', LV_VIEW_ICON}, {'M', LV_VIEW_SMALLICON}, {'L', LV_VIEW_LIST}, {'D', LV_VIEW_DETAILS}};
  for (std::size_t i = 0; i < styles.size(); ++i) {
    ChooseMenu(std::string("V") + styles[i].first);
    ExpectSoon(styles[i].second, [&] { return ViewOf(List()); });
    ExpectSoon(false, [&] { return CanPressTool(kFirstStyleButton + static_cast<int>(i)); });
  }
  for (std::size_t i = 0; i < styles.size(); ++i) {
    PressTool(kFirstStyleButton + static_cast<int>(i));
    ExpectSoon(styles[i].second, [&] { return ViewOf(List()); });
  }
  EXPECT_THAT(Names(List()), ::testing::UnorderedElementsAre("Plan.png", "Report.txt"));
}

TEST_F(MainWindowSession, TheDocumentsAreSortedByTheColumnThatIsClicked) {
  Click(PlaceOfHeader(List(), 0));
  ExpectSoon(std::vector<std::string>{"Plan.png", "Report.txt"}, [&] { return Names(List()); });
  // So far from the first place that both are no double click.
  POINT place = PlaceOfHeader(List(), 0);
  place.x += 2 * GetSystemMetrics(SM_CXDOUBLECLK);
  Click(place);
  ExpectSoon(std::vector<std::string>{"Report.txt", "Plan.png"}, [&] { return Names(List()); });
}

TEST_F(MainWindowSession, OnlyAChosenDocumentHasAFolderToShow) {
  EXPECT_FALSE(CanPressTool(kExploreButton));
  ClickRow(List(), "Report.txt");
  ExpectSoon(true, [&] { return CanPressTool(kExploreButton); });
}

TEST_F(MainWindowSession, ADocumentThatIsGoneIsAskedAboutAndItsLinkRemovedAfterYes) {
  std::remove((Documents() / "Report.txt").c_str());
  ClickNode(DayName(0));
  ClickRow(List(), "Report.txt");
  PressKey(VK_RETURN);
  EXPECT_THAT(AnswerBox(IDYES), ::testing::HasSubstr("was not found. Remove this link?"));
  ExpectSoon(std::vector<std::string>{"Plan.png"}, [&] { return Names(List()); });
  ExpectSoon(false, [&] { return IsFiled("Report.txt", 0); });
}

TEST_F(MainWindowSession, ADayIsPurgedByItsMenu) {
  ChooseMenu("DU");  // what is still in the Recent folder would be filed again
  ClickNode(DayName(2));
  ExpectSoon(std::vector<std::string>{"Old.txt"}, [&] { return Names(List()); });
  for (const Node& node : Nodes(Tree()))
    if (node.text == DayName(2)) RightClick(PlaceOfNode(Tree(), node.item));
  WaitUntil([&] { return HasOpenMenu(); }, "the menu of the day");
  PressKey('P');
  ExpectSoon(false, [&] { return IsFiled("Old.txt", 2); });
  EXPECT_TRUE(Exists(DocumentPath("Old.txt")));
}

TEST_F(MainWindowSession, TheFavoritesAreBuiltAnewFromTheRecord) {
  ChooseMenu("VF");
  ExpectSoon(2, [&] { return RowCount(Favorites()); });
  std::remove((testing::PathOf(FiledPath("Plan.png", 1))).string().c_str());
  ChooseMenu("TR");
  ExpectSoon(std::vector<std::string>{"Report.txt"}, [&] { return Names(Favorites()); });
}

TEST_F(MainWindowSession, FindIsYetToCome) {
  PressTool(kFindButton);
  EXPECT_EQ(AnswerBox(IDOK), "Display find dialog box here.");
}

TEST_F(MainWindowSession, TheHelpOpensWithItsContents) {
  ChooseMenu("HD");
  EXPECT_NE(Program().WaitForWindow("Dayvane Help"), nullptr);
}

TEST_F(MainWindowSession, TheHelpOpensWithTheTopicOfTheWindow) {
  PressTool(kHelpButton);
  EXPECT_NE(Program().WaitForWindow("The main window - Dayvane Help"), nullptr);
}

}  // namespace
}  // namespace dayvane::session
