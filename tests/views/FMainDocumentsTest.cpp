// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/MainWindow.h"
#include "tests/support/System.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using platform::MessageAnswer;
using testing::ColumnOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::ReadFile;
using ::testing::SizeIs;
using testing::TextsOf;

/// A document of a list opened, or its link removed. The list shows 20 November, with a.odt alone unless a test files
/// more; the Recent folder is empty.
class DocumentActionsTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  DocumentActionsTest() { File("20", "a.odt"); }

  void File(const std::string& day, const std::string& name) const {
    fs::create_directories(Daily("2026/November/" + day));
    platform::ShellLink link;
    link.target = "Z:\\home\\ana\\" + name;
    link.workingDirectory = "Z:\\home\\ana";
    link.showCommand = 3;
    testing::WriteShortcut(Filed(day, name), link, "2026-11-" + day + " 10:00:00");
  }
  std::string Filed(const std::string& day, const std::string& name) const {
    return Daily("2026/November/" + day + "/" + name + ".lnk");
  }
  std::string Recent(const std::string& name) const { return desktop.NativeRecent() + "/" + name + ".lnk"; }

  void LoadDay() {
    Load();
    window.SelectDate(Date::Of(2026, 11, 20));
  }
  controls::ListItem& Row(const std::string& name) {
    return window.lvwDaily.Item(Key("2026\\November\\20\\" + name + ".lnk"));
  }
  /// Opens a.odt where the shell gives this result.
  void OpenWith(int result) {
    desktop.shell.openResult = result;
    window.OpenDocument(&Row("a.odt"));
  }
  std::vector<std::string> Events() const { return desktop.LogLines("EventLog.txt"); }
  std::vector<std::string> Errors() const { return desktop.LogLines("ErrorLog.txt"); }
};

TEST_F(DocumentActionsTest, ADocumentOpensInItsFolderAndWindowAsItsShortcutSays) {
  LoadDay();
  OpenWith(42);
  EXPECT_THAT(desktop.shell.opened, ElementsAre("Z:\\home\\ana\\a.odt|z:\\home\\ana|3"));
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(DocumentActionsTest, AnOpenedDocumentsLinkIsPutBackIntoTheRecentFolder) {
  LoadDay();
  OpenWith(42);
  EXPECT_EQ(ReadFile(Recent("a.odt")), ReadFile(Filed("20", "a.odt")));
}

TEST_F(DocumentActionsTest, TheLinkPutBackTakesThePlaceOfAnother) {
  LoadDay();
  desktop.folder.Write("recent/a.odt.lnk", std::string(5000, 'x'));
  OpenWith(42);
  EXPECT_EQ(ReadFile(Recent("a.odt")), ReadFile(Filed("20", "a.odt")));
}

TEST_F(DocumentActionsTest, ADocumentOpenedFromTheListIsFiledUnderToday) {
  LoadDay();
  OpenWith(42);
  testing::SetWritten(Recent("a.odt"), "2026-11-21 12:00:00");
  Tick();
  EXPECT_TRUE(fs::exists(Filed("21", "a.odt")));
}

TEST_F(DocumentActionsTest, ResultsWithoutAMessageOfTheirOwnCountAsOpened) {
  LoadDay();
  for (const int result : {1, 4, 5, 10, 12, 25, 32, 33}) {
    OpenWith(result);
    EXPECT_TRUE(fs::remove(Recent("a.odt"))) << result;
  }
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(DocumentActionsTest, FailuresOfTheSystemAreToldAndNothingIsPutBack) {
  LoadDay();
  for (const int result : {0, 11, 26, 27, 28, 29, 30}) {
    desktop.windowing.messages.clear();
    OpenWith(result);
    ASSERT_THAT(desktop.windowing.messages, SizeIs(1)) << result;
    const platform::Message& told = desktop.windowing.messages[0];
    EXPECT_EQ(told.text, "An operating system error occurred.");
    EXPECT_EQ(told.title, "Dayvane");
    EXPECT_EQ(told.buttons, platform::MessageButtons::Ok);
    EXPECT_EQ(told.icon, platform::MessageIcon::Information);
  }
  EXPECT_FALSE(fs::exists(Recent("a.odt")));
}

TEST_F(DocumentActionsTest, ADocumentThatNoProgramOpensIsTold) {
  LoadDay();
  OpenWith(31);
  ASSERT_THAT(desktop.windowing.messages, SizeIs(1));
  const platform::Message& told = desktop.windowing.messages[0];
  EXPECT_EQ(told.text, "Document of this file type\r\nare no longer associated with a program.");
  EXPECT_EQ(told.title, "Dayvane");
  EXPECT_EQ(told.buttons, platform::MessageButtons::Ok);
  EXPECT_EQ(told.icon, platform::MessageIcon::Information);
  EXPECT_FALSE(fs::exists(Recent("a.odt")));
}

TEST_F(DocumentActionsTest, AMissingDocumentIsNamedInTheQuestion) {
  LoadDay();
  OpenWith(2);
  ASSERT_THAT(desktop.windowing.messages, SizeIs(1));
  const platform::Message& question = desktop.windowing.messages[0];
  EXPECT_EQ(question.text, "The document Z:\\home\\ana\\a.odt\r\nwas not found. Remove this link?");
  EXPECT_EQ(question.title, "Dayvane");
  EXPECT_EQ(question.buttons, platform::MessageButtons::YesNo);
  EXPECT_EQ(question.icon, platform::MessageIcon::Question);
}

TEST_F(DocumentActionsTest, AMissingFolderIsNamedInTheQuestion) {
  LoadDay();
  OpenWith(3);
  ASSERT_THAT(desktop.windowing.messages, SizeIs(1));
  const platform::Message& question = desktop.windowing.messages[0];
  EXPECT_EQ(question.text, "The path Z:\\home\\ana\r\nwas not found. Remove this link?");
  EXPECT_EQ(question.title, "Dayvane");
  EXPECT_EQ(question.buttons, platform::MessageButtons::YesNo);
  EXPECT_EQ(question.icon, platform::MessageIcon::Question);
}

TEST_F(DocumentActionsTest, QuestionsShowPathsAsAPersonOfTheDesktopReadsThem) {
  desktop.shell.displayPath = [](const std::string& path) { return "<" + path + ">"; };
  LoadDay();
  desktop.windowing.answer = MessageAnswer::No;
  OpenWith(2);
  OpenWith(3);
  EXPECT_THAT(desktop.windowing.Texts(),
              ElementsAre("The document <Z:\\home\\ana\\a.odt>\r\nwas not found. Remove this link?",
                          "The path <Z:\\home\\ana>\r\nwas not found. Remove this link?"));
}

TEST_F(DocumentActionsTest, NoLeavesTheLinkAndItsFiles) {
  LoadDay();
  desktop.folder.Write("recent/a.odt.lnk", "x");
  desktop.windowing.answer = MessageAnswer::No;
  OpenWith(2);
  OpenWith(3);
  EXPECT_TRUE(fs::exists(Filed("20", "a.odt")));
  EXPECT_EQ(ReadFile(Recent("a.odt")), "x");
  EXPECT_EQ(window.lvwDaily.Count(), 1U);
}

TEST_F(DocumentActionsTest, YesRemovesTheLinkFromTheListTheDayAndTheRecentFolder) {
  File("20", "b.odt");
  LoadDay();
  desktop.folder.Write("recent/a.odt.lnk", "x");
  desktop.folder.Write("recent/b.odt.lnk", "x");
  OpenWith(2);
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("b.odt"));
  EXPECT_FALSE(fs::exists(Filed("20", "a.odt")));
  EXPECT_FALSE(fs::exists(Recent("a.odt")));
  EXPECT_TRUE(fs::exists(Filed("20", "b.odt")));
  EXPECT_TRUE(fs::exists(Recent("b.odt")));
}

TEST_F(DocumentActionsTest, YesRemovesTheLinkOfADocumentWhoseFolderIsGoneToo) {
  LoadDay();
  OpenWith(3);
  EXPECT_FALSE(fs::exists(Filed("20", "a.odt")));
}

TEST_F(DocumentActionsTest, TheLinkIsRemovedThoughACaptureFilledTheListAnewMeanwhile) {
  LoadDay();
  desktop.windowing.whileAsked = [this] {
    desktop.OpenDocument("Z:\\home\\ana\\b.odt", "2026-11-20 11:00:00");
    Tick();
  };
  OpenWith(2);
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("b.odt"));
  EXPECT_FALSE(fs::exists(Filed("20", "a.odt")));
}

TEST_F(DocumentActionsTest, FilesThatAreGoneAlreadyDoNotKeepALinkFromBeingRemoved) {
  File("20", "b.odt");
  LoadDay();
  fs::remove(Filed("20", "a.odt"));
  window.RemoveLink(&Row("a.odt"));
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("b.odt"));
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(DocumentActionsTest, TheDaysLastDocumentTakesTheDayAlong) {
  File("19", "b.odt");
  LoadDay();
  window.RemoveLink(&Row("a.odt"));
  EXPECT_FALSE(fs::exists(Daily("2026/November/20")));
  EXPECT_THAT(TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  November", "   19"));
  EXPECT_EQ(window.lvwDaily.Count(), 0U);
  EXPECT_THAT(Errors(), IsEmpty());
}

TEST_F(DocumentActionsTest, ADayThatGoesWithItsLastDocumentStandsOutNoLongerInTheCalendar) {
  File("19", "b.odt");
  Load();
  window.form.Activate.Raise();
  ASSERT_TRUE(window.calMain.Highlight(20));
  window.RemoveLink(&Row("a.odt"));
  EXPECT_FALSE(window.calMain.Highlight(20));
  EXPECT_TRUE(window.calMain.Highlight(19));
}

TEST_F(DocumentActionsTest, WhileTheDayHoldsAnotherDocumentTheTreeIsLeftAlone) {
  File("20", "b.odt");
  LoadDay();
  int refreshed = 0;
  window.tvwMain.ContentsChanged.Connect([&] { ++refreshed; });
  window.RemoveLink(&Row("a.odt"));
  EXPECT_EQ(refreshed, 0);
}

TEST_F(DocumentActionsTest, RemovingAFavoriteCountsTheFavoritesAnew) {
  for (const char* day : {"17", "18", "19"}) File(day, "a.odt");
  Load();
  ASSERT_THAT(ColumnOf(window.lvwFavorites, 3), ElementsAre("    4"));
  const controls::ListItem& favorite = window.lvwFavorites.Row(0);
  const std::string key = favorite.key;
  window.RemoveLink(&favorite);
  EXPECT_THAT(ColumnOf(window.lvwFavorites, 3), ElementsAre("    3"));
  EXPECT_EQ(window.lvwFavorites.Find(key), nullptr);
}

TEST_F(DocumentActionsTest, AFavoriteCanBeRemovedWhileAnotherDayIsShown) {
  File("19", "b.odt");
  File("18", "b.odt");
  LoadDay();
  window.RemoveLink(&window.lvwFavorites.Row(0));
  EXPECT_THAT(ColumnOf(window.lvwFavorites, 0), IsEmpty());
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("a.odt"));
  EXPECT_THAT(Errors(), IsEmpty());
}

TEST_F(DocumentActionsTest, RemovingWhatIsNoFavoriteCountsNothingAnew) {
  desktop.folder.Write("program/Favorites.dat",
                       "9,#2026-11-18 10:00:00#,\"Z:\\x.lnk\",\"x\",\"z:\\home\",\"Text\",\"\",0\r\n");
  LoadDay();
  window.RemoveLink(&Row("a.odt"));
  window.RefreshFavorites();
  EXPECT_THAT(ColumnOf(window.lvwFavorites, 3), ElementsAre("    9"));
}

TEST_F(DocumentActionsTest, ADoubleClickOpensTheDocumentWhileTheUserIsAskedToWait) {
  LoadDay();
  window.lvwDaily.Click(Row("a.odt"));
  window.sbrMain.SetText("before");
  std::vector<std::string> texts;
  window.sbrMain.Changed.Connect([&] { texts.push_back(window.sbrMain.Text()); });
  window.lvwDaily.DblClick.Raise();
  EXPECT_THAT(desktop.shell.opened, SizeIs(1));
  EXPECT_THAT(texts, ElementsAre("Please wait...", "before", "1 objects"));
}

TEST_F(DocumentActionsTest, AFavoriteOpensByADoubleClickToo) {
  File("19", "a.odt");
  Load();
  window.SetActiveView(FMain::kFavoritesView);
  window.lvwFavorites.SetSelectedItem(&window.lvwFavorites.Item(window.lvwFavorites.Row(0).key));
  window.sbrMain.SetText("before");
  std::vector<std::string> texts;
  window.sbrMain.Changed.Connect([&] { texts.push_back(window.sbrMain.Text()); });
  window.lvwFavorites.DblClick.Raise();
  EXPECT_THAT(desktop.shell.opened, ElementsAre("Z:\\home\\ana\\a.odt|z:\\home\\ana|3"));
  EXPECT_THAT(texts, ElementsAre("Please wait...", "before", "1 objects"));
}

TEST_F(DocumentActionsTest, TheMenuOfADocumentShowsAtTheMouse) {
  LoadDay();
  window.picDaily.Move(100, 200, 5000, 5000);
  window.lvwDaily.Click(Row("a.odt"));
  window.lvwDaily.MouseUp.Raise(2, 30, 40);
  EXPECT_EQ(desktop.windowing.popupMenu, &window.mnuListViewPopup);
  EXPECT_EQ(desktop.windowing.popupX, 130);
  EXPECT_EQ(desktop.windowing.popupY, 240);
}

TEST_F(DocumentActionsTest, AMenuOfADocumentThatCannotBeShownIsReported) {
  LoadDay();
  desktop.windowing.noPopup = true;
  window.lvwDaily.Click(Row("a.odt"));
  window.lvwDaily.MouseUp.Raise(2, 30, 40);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred displaying a context menu."));
  EXPECT_THAT(Errors().at(0), ::testing::StartsWith("FMain.m_oDaily_ListViewPopupMenu\t"));
}

TEST_F(DocumentActionsTest, AShortcutThatIsGoneIsReported) {
  LoadDay();
  fs::remove(Filed("20", "a.odt"));
  OpenWith(42);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred opening a document."));
  EXPECT_THAT(Errors().at(0), ::testing::StartsWith("FMain.OpenDocument\t53\t"));
  EXPECT_THAT(desktop.shell.opened, IsEmpty());
}

TEST_F(DocumentActionsTest, ALinkThatCannotBePutBackIsReported) {
  LoadDay();
  fs::remove(desktop.NativeRecent());
  OpenWith(42);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred opening a document."));
}

TEST_F(DocumentActionsTest, NoDocumentToOpenIsLoggedAndReported) {
  LoadDay();
  window.OpenDocument(nullptr);
  EXPECT_THAT(Events(), ElementsAre("2\tFMain.OpenDocument: Item is Nothing"));
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred opening a document."));
}

TEST_F(DocumentActionsTest, AMissingRecentFolderIsLoggedWhenADocumentOpens) {
  desktop.shell.recentFolder = " ";
  LoadDay();
  OpenWith(42);
  EXPECT_THAT(Events(), Contains("2\tFMain.OpenDocument: Recent folder is missing"));
  EXPECT_THAT(desktop.shell.opened, SizeIs(1));
}

TEST_F(DocumentActionsTest, NoLinkToRemoveIsLoggedAndReported) {
  LoadDay();
  window.RemoveLink(nullptr);
  EXPECT_THAT(Events(), ElementsAre("2\tFMain.RemoveLink: Item is nothing"));
  EXPECT_THAT(desktop.windowing.messages, SizeIs(1));
}

TEST_F(DocumentActionsTest, BeforeTheWindowHasLoadedRemovingALinkIsLoggedAndReported) {
  const controls::ListItem item{Key("2026\\November\\20\\gone.lnk"), "gone", 1, {}};
  window.RemoveLink(&item);
  EXPECT_THAT(Events(), ElementsAre("2\tFMain.RemoveLink: Daily object is nothing",
                                    "2\tFMain.RemoveLink: Favorites object is nothing",
                                    "2\tFMain.RemoveLink: Recent folder is missing"));
  EXPECT_THAT(desktop.windowing.messages, SizeIs(1));
}

TEST_F(DocumentActionsTest, BeforeTheWindowHasLoadedExploringIsLoggedAndReported) {
  window.Explore();
  window.OpenFolder();
  EXPECT_THAT(Events(),
              ElementsAre("2\tFMain.Explore: Daily object is nothing", "2\tFMain.OpenFolder: Daily object is nothing"));
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred Exploring the document's folder.",
                                                     "An error occurred opening the document's folder."));
}

TEST_F(DocumentActionsTest, TheToolbarExploresAndOpensTheSelectedDocumentsFolder) {
  LoadDay();
  window.lvwDaily.Click(Row("a.odt"));
  window.sftToolbar[kExploreButton].Press();
  window.sftToolbar[kOpenFolderButton].Press();
  EXPECT_THAT(desktop.shell.commandLines, ElementsAre("C:\\WINDOWS\\EXPLORER.EXE /n,/e,/root,z:\\home\\ana",
                                                      "C:\\WINDOWS\\EXPLORER.EXE /n,z:\\home\\ana"));
}

}  // namespace
}  // namespace dayvane
