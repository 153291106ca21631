// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using testing::ColumnOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TextsOf;

/// Days chosen in the tree and the calendar, and the documents and icons that the list then shows.
class DailyListTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  void FileAs(const std::string& day, const std::string& name, const std::string& target) const {
    fs::create_directories(Daily(day));
    platform::ShellLink link;
    link.target = target;
    testing::WriteShortcut(Daily(day) + "/" + name, link, "2026-11-20 10:00:00");
  }
  controls::ListItem& Row(const std::string& path) { return window.lvwDaily.Item(Key(path)); }
  bool CanExplore() const {
    return window.mnuToolsPopup[kToolsExplore].Enabled() && window.sftToolbar[kExploreButton].Enabled();
  }
  std::vector<std::string> Reports() const { return desktop.LogLines("ErrorLog.txt"); }
};

TEST_F(DailyListTest, TheColumnsAreNameTypePathAndModified) {
  std::vector<std::string> headings;
  for (const auto& column : window.lvwDaily.Columns()) headings.push_back(column.text);
  EXPECT_THAT(headings, ElementsAre("Name", "Type", "Path", "Modified"));
}

TEST_F(DailyListTest, EveryShortcutOfTheDayIsARowAndNothingElse) {
  FileAs("2026/November/20", "a.odt.lnk", "Z:\\a.odt");
  FileAs("2026/November/20", "B.LNK", "Z:\\b.odt");
  Load();
  desktop.folder.Write("program/Daily/2026/November/20/notes.txt", "x");
  fs::create_directories(Daily("2026/November/20/folder.lnk"));
  window.SelectDate(Date::Of(2026, 11, 20));
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ::testing::UnorderedElementsAre("a.odt", "B"));
}

TEST_F(DailyListTest, TheTimeOfARowIsWrittenAsTheUserWritesTimes) {
  desktop.dates.shortTime = "h:nn AM/PM";
  FileAs("2026/November/20", "a.odt.lnk", "Z:\\a.odt");
  Load();
  window.SelectDate(Date::Of(2026, 11, 20));
  EXPECT_THAT(ColumnOf(window.lvwDaily, 3), ElementsAre("10:00 AM"));
}

TEST_F(DailyListTest, ByModifiedTheDayIsInTheOrderInWhichItWentHoweverTimesAreWritten) {
  desktop.dates.shortTime = "h:nn AM/PM";
  File("2026/November/20", "Z:\\one.odt", "2026-11-20 13:00:00");
  File("2026/November/20", "Z:\\nine.odt", "2026-11-20 09:00:00");
  File("2026/November/20", "Z:\\ten.odt", "2026-11-20 10:00:00");
  File("2026/November/20", "Z:\\soon.odt", "2026-11-20 10:00:20");
  Load();
  window.SelectDate(Date::Of(2026, 11, 20));
  window.lvwDaily.ColumnClick.Raise(4);
  EXPECT_THAT(ColumnOf(window.lvwDaily, 3), ElementsAre("9:00 AM", "10:00 AM", "10:00 AM", "1:00 PM"));
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("nine.odt", "ten.odt", "soon.odt", "one.odt"));
  window.lvwDaily.ColumnClick.Raise(4);
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("one.odt", "soon.odt", "ten.odt", "nine.odt"));
}

TEST_F(DailyListTest, ByModifiedADayBeforeTheEpochIsInItsOrderToo) {
  File("2026/November/20", "Z:\\a.odt", "1970-01-02 00:00:00");
  File("2026/November/20", "Z:\\b.odt", "1969-12-30 00:00:00");
  Load();
  window.SelectDate(Date::Of(2026, 11, 20));
  window.lvwDaily.ColumnClick.Raise(4);
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("b.odt", "a.odt"));
}

TEST_F(DailyListTest, ADayIsListedInTheOrderOfTheListBeforeIt) {
  FileAs("2026/November/19", "a.odt.lnk", "Z:\\a.odt");
  for (const char* name : {"a", "b", "c"}) FileAs("2026/November/20", std::string(name) + ".lnk", "Z:\\x");
  Load();
  window.tvwMain.Click(Node("2026\\November\\19"));
  window.lvwDaily.ColumnClick.Raise(1);
  window.lvwDaily.ColumnClick.Raise(1);
  window.tvwMain.Click(Node("2026\\November\\20"));
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("c", "b", "a"));
}

TEST_F(DailyListTest, ShortcutsToOneTargetNameShareOneIcon) {
  for (const char* name : {"a.lnk", "b.lnk"}) FileAs("2026/November/20", name, "Z:\\x.odt");
  FileAs("2026/November/20", "c.lnk", "Z:\\y.odt");
  Load();
  window.SelectDate(Date::Of(2026, 11, 20));
  EXPECT_EQ(Row("2026\\November\\20\\a.lnk").icon, Row("2026\\November\\20\\b.lnk").icon);
  EXPECT_NE(Row("2026\\November\\20\\a.lnk").icon, Row("2026\\November\\20\\c.lnk").icon);
  EXPECT_EQ(window.imlLarge.Count(), 3);
  EXPECT_EQ(window.imlSmall.Count(), 3);
}

TEST_F(DailyListTest, ARowsIconIsItsShortcutsInBothSizes) {
  FileAs("2026/November/20", "a.lnk", "Z:\\x.odt");
  Load();
  desktop.icons.asked.clear();
  window.SelectDate(Date::Of(2026, 11, 20));
  const int icon = Row("2026\\November\\20\\a.lnk").icon;
  EXPECT_THAT(window.imlLarge.At(icon).iconNames, ElementsAre("a.lnk"));
  EXPECT_THAT(window.imlSmall.At(icon).iconNames, ElementsAre("a.lnk"));
  const std::string shortcut = desktop.Folder() + "\\Daily\\2026\\November\\20\\a.lnk";
  EXPECT_THAT(desktop.icons.asked, ElementsAre(shortcut + "|32|610", shortcut + "|32|114", shortcut + "|32|111"));
}

TEST_F(DailyListTest, IconsLiveOnlyAsLongAsOneDaysList) {
  FileAs("2026/November/19", "a.lnk", "Z:\\x.odt");
  FileAs("2026/November/20", "b.lnk", "Z:\\y.odt");
  Load();
  window.SelectDate(Date::Of(2026, 11, 19));
  window.SelectDate(Date::Of(2026, 11, 20));
  EXPECT_EQ(window.imlLarge.Count(), 2);
  EXPECT_EQ(window.imlSmall.Count(), 2);
  EXPECT_THAT(window.imlLarge.At(2).iconNames, ElementsAre("b.lnk"));
  EXPECT_EQ(window.lvwDaily.LargeImages(), &window.imlLarge);
  EXPECT_EQ(window.lvwDaily.SmallImages(), &window.imlSmall);
}

TEST_F(DailyListTest, ADocumentWithoutAnIconHasTheDefaultOne) {
  desktop.icons.hasIcons = false;
  FileAs("2026/November/20", "a.lnk", "Z:\\x.odt");
  Load();
  window.SelectDate(Date::Of(2026, 11, 20));
  EXPECT_EQ(Row("2026\\November\\20\\a.lnk").icon, 1);
  EXPECT_EQ(window.imlLarge.At(1).resource, kDefaultDocumentPicture);
}

TEST_F(DailyListTest, NamesMissingForAnIconAreLogged) {
  Load();
  window.DailyImageListIndex(" ", "");
  EXPECT_THAT(desktop.LogLines("EventLog.txt"),
              ElementsAre("2\tFMain.DailyImageListIndex: Shortcut file name is missing",
                          "2\tFMain.DailyImageListIndex: Target file name is missing"));
}

TEST_F(DailyListTest, WithoutANodeTheListIsEmptied) {
  FileAs("2026/November/20", "a.lnk", "Z:\\x.odt");
  Load();
  window.SelectDate(Date::Of(2026, 11, 20));
  window.LoadDailyListView(nullptr);
  EXPECT_EQ(window.lvwDaily.Count(), 0U);
  EXPECT_EQ(window.imlLarge.Count(), 1);
}

TEST_F(DailyListTest, ASelectedDocumentCanBeExploredUntilAnotherDayIsListed) {
  FileAs("2026/November/19", "a.lnk", "Z:\\x.odt");
  FileAs("2026/November/20", "b.lnk", "Z:\\y.odt");
  Load();
  window.tvwMain.Click(Node("2026\\November\\20"));
  EXPECT_FALSE(CanExplore());
  window.lvwDaily.Click(Row("2026\\November\\20\\b.lnk"));
  EXPECT_TRUE(CanExplore());
  window.tvwMain.Click(Node("2026\\November\\19"));
  EXPECT_FALSE(CanExplore());
}

TEST_F(DailyListTest, ADateChosenInTheCalendarListsItsDocuments) {
  FileAs("2026/November/20", "a.lnk", "Z:\\x.odt");
  Load();
  window.calMain.SetCurrentDate(std::chrono::local_days{std::chrono::year{2026} / 11 / 20});
  EXPECT_EQ(window.tvwMain.SelectedItem(), &Node("2026\\November\\20"));
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("a"));
  EXPECT_EQ(window.sbrMain.Text(), "1 objects");
  EXPECT_TRUE(window.calMain.Highlight(20));
}

TEST_F(DailyListTest, ADayClickedInTheTreeIsListedOnceAndHighlighted) {
  FileAs("2026/November/20", "a.lnk", "Z:\\x.odt");
  Load();
  int listed = 0;
  window.lvwDaily.ContentsChanged.Connect([&] { ++listed; });
  window.tvwMain.Click(Node("2026\\November\\20"));
  EXPECT_EQ(listed, 1);
  EXPECT_TRUE(window.calMain.Highlight(20));
}

TEST_F(DailyListTest, ClickingADaySaysPleaseWaitUntilItIsListed) {
  FileAs("2026/November/20", "a.lnk", "Z:\\x.odt");
  Load();
  std::vector<std::string> texts;
  window.sbrMain.Changed.Connect([&] { texts.push_back(window.sbrMain.Text()); });
  window.tvwMain.Click(Node("2026\\November\\20"));
  EXPECT_THAT(texts, ElementsAre("Please wait...", "0 objects", "1 objects"));
}

TEST_F(DailyListTest, AfterADayWasClickedTheCalendarSelectsDaysAgain) {
  FileAs("2026/November/19", "a.lnk", "Z:\\x.odt");
  FileAs("2026/November/20", "b.lnk", "Z:\\y.odt");
  Load();
  window.tvwMain.Click(Node("2026\\November\\20"));
  window.calMain.SetCurrentDate(std::chrono::local_days{std::chrono::year{2026} / 11 / 19});
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("a"));
}

TEST_F(DailyListTest, ARootYearOrMonthWithoutDaysIsOnlyListed) {
  Load();
  fs::create_directories(Daily("2025"));
  fs::create_directories(Daily("2026/November"));
  window.RefreshDaily();
  const auto date = window.calMain.CurrentDate();
  for (const char* path : {"2025", "2026\\November"}) window.tvwMain.Click(Node(path));
  fs::remove_all(Daily(""));
  window.RefreshDaily();
  window.tvwMain.Click(*window.tvwMain.Roots()[0]);
  EXPECT_EQ(window.calMain.CurrentDate(), date);
  EXPECT_EQ(window.sbrMain.Text(), "0 objects");
  EXPECT_THAT(Reports(), IsEmpty());
}

TEST_F(DailyListTest, AFolderAmongTheDaysThatIsNoDateIsReportedAndTheCalendarGoesOn) {
  FileAs("2026/November/20", "a.lnk", "Z:\\x.odt");
  Load();
  desktop.folder.Write("program/Daily/2026/November/X.LNK", "");
  window.RefreshDaily();
  window.tvwMain.Click(Node("2026\\November\\X.LNK"));
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred processing a document selection."));
  EXPECT_THAT(Reports().at(0), ::testing::StartsWith("FMain.m_oDaily_TreeViewNodeClick\t13\t"));
  window.calMain.SetCurrentDate(std::chrono::local_days{std::chrono::year{2026} / 11 / 20});
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("a"));
}

TEST_F(DailyListTest, TheLatestDaysErrorIsReported) {
  Load();
  fs::create_directories(Daily("2026/November"));
  window.FindLatestDay();
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred finding the latest day with documents."));
}

TEST_F(DailyListTest, WithoutDaysTheCalendarStaysWhereItIs) {
  Load();
  const auto date = window.calMain.CurrentDate();
  window.FindLatestDay();
  EXPECT_EQ(window.calMain.CurrentDate(), date);
}

TEST_F(DailyListTest, BeforeTheWindowHasLoadedTheCalendarIsMissing) {
  FileAs("2026/November/20", "a.lnk", "Z:\\x.odt");
  window.FindLatestDay();
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre("2\tFMain.FindLatestDay: Calendar object is nothing"));
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred finding the latest day with documents."));
}

TEST_F(DailyListTest, AReloadWithoutAChosenDayFillsTheTreeAlone) {
  Load();
  FileAs("2026/November/20", "a.lnk", "Z:\\x.odt");
  window.RefreshDaily();
  EXPECT_THAT(TextsOf(window.tvwMain), Contains("   20"));
  EXPECT_EQ(window.tvwMain.SelectedItem(), nullptr);
  EXPECT_EQ(window.lvwDaily.Count(), 0U);
}

}  // namespace
}  // namespace dayvane
