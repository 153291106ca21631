// SPDX-License-Identifier: MIT
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolBar>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include "linux/help/HelpFindBar.h"
#include "linux/help/HelpNavigation.h"
#include "linux/help/HelpPopup.h"
#include "linux/help/HelpViewer.h"
#include "resources/MHelpConstants.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::help {
namespace {

class HelpViewerTest : public ::testing::Test {
 protected:
  QTextBrowser& Page() { return *viewer.findChild<QTextBrowser*>(); }
  QTreeWidget& Contents() { return *viewer.findChild<QTreeWidget*>(); }
  QLineEdit& Search() { return *viewer.findChild<HelpNavigation*>()->findChild<QLineEdit*>(); }
  QListWidget& Found() { return *viewer.findChild<QListWidget*>(); }
  HelpFindBar& FindBar() { return *viewer.findChild<HelpFindBar*>(); }
  HelpPopup* Popup() { return viewer.findChild<HelpPopup*>(); }

  HelpViewer viewer{QStringLiteral(DAYVANE_HELP_FILE)};
};

TEST_F(HelpViewerTest, ContentsOpenOnTheFirstPage) {
  viewer.ShowContents();
  EXPECT_TRUE(viewer.isVisible());
  EXPECT_TRUE(Page().toPlainText().startsWith("Dayvane Help\n"));
  EXPECT_EQ(viewer.windowTitle(), "Dayvane Help");
}

TEST_F(HelpViewerTest, TheTopicAskedForIsShownAndMarkedInTheContents) {
  viewer.ShowTopic(kHelpMainWindow);
  EXPECT_TRUE(Page().toPlainText().startsWith("The main window\n"));
  EXPECT_EQ(viewer.windowTitle(), "The main window - Dayvane Help");
  ASSERT_NE(Contents().currentItem(), nullptr);
  EXPECT_EQ(Contents().currentItem()->text(0), "The main window");
}

TEST_F(HelpViewerTest, AnUnknownContextGetsAFriendlyPage) {
  viewer.ShowTopic(9999);
  EXPECT_TRUE(viewer.isVisible());
  EXPECT_TRUE(Page().toPlainText().startsWith("No help on this yet"));
}

TEST_F(HelpViewerTest, ALinkIsFollowedAndTheWayBackIsKept) {
  viewer.ShowTopic(kHelpDayTree);
  Page().setSource(QUrl("calendar"));
  EXPECT_TRUE(Page().toPlainText().startsWith("Calendar\n"));
  EXPECT_EQ(Contents().currentItem()->text(0), "Calendar");
  Page().backward();
  EXPECT_TRUE(Page().toPlainText().startsWith("Day tree\n"));
  EXPECT_EQ(Contents().currentItem()->text(0), "Day tree");
}

TEST_F(HelpViewerTest, ALinkOutOfTheHelpIsNotFollowed) {
  viewer.ShowTopic(kHelpDayTree);
  Page().setSource(QUrl("file:///etc/passwd"));
  Page().setSource(QUrl("https://dayvane.example/"));
  EXPECT_TRUE(Page().toPlainText().startsWith("Day tree\n"));
}

TEST_F(HelpViewerTest, ChoosingInTheContentsShowsTheTopic) {
  viewer.ShowContents();
  Contents().setCurrentItem(Contents().findItems("Options", Qt::MatchExactly).front());
  EXPECT_TRUE(Page().toPlainText().startsWith("Options\n"));
}

TEST_F(HelpViewerTest, SearchListsTheTopicsAndEnterShowsTheFirst) {
  viewer.ShowContents();
  QTest::keyClicks(&Search(), "purge age");
  ASSERT_TRUE(Found().isVisible());
  ASSERT_GE(Found().count(), 2);
  QTest::keyClick(&Search(), Qt::Key_Return);
  EXPECT_TRUE(Page().toPlainText().startsWith("Purge Age\n"));
}

TEST_F(HelpViewerTest, ASearchWithoutAFindSaysSo) {
  viewer.ShowContents();
  QTest::keyClicks(&Search(), "xylophone");
  QTest::keyClick(&Search(), Qt::Key_Return);
  EXPECT_EQ(Found().item(0)->text(), "No topic holds these words.");
  EXPECT_TRUE(Page().toPlainText().startsWith("Dayvane Help\n"));
}

TEST_F(HelpViewerTest, ClearingTheSearchBringsTheContentsBack) {
  viewer.ShowContents();
  Search().setText("purge");
  Search().clear();
  EXPECT_TRUE(Contents().isVisible());
}

TEST_F(HelpViewerTest, FindInPageSelectsTheWordsAndWrapsAround) {
  viewer.ShowTopic(kHelpFirstRun);
  FindBar().Open();
  auto* words = FindBar().findChild<QLineEdit*>();
  QTest::keyClicks(words, "double-click");
  const int first = Page().textCursor().selectionStart();
  EXPECT_EQ(Page().textCursor().selectedText(), "Double-click");
  QTest::keyClick(words, Qt::Key_Return);
  EXPECT_EQ(Page().textCursor().selectionStart(), first);
}

TEST_F(HelpViewerTest, WordsThatAreNotOnThePageAreReported) {
  viewer.ShowTopic(kHelpFirstRun);
  FindBar().Open();
  QTest::keyClicks(FindBar().findChild<QLineEdit*>(), "xylophone");
  const QList<QLabel*> labels = FindBar().findChildren<QLabel*>();
  EXPECT_TRUE(std::any_of(labels.begin(), labels.end(),
                          [](QLabel* label) { return label->text() == "Not found" && label->isVisible(); }));
}

TEST_F(HelpViewerTest, EscapeClosesTheFindBarAndThenTheWindow) {
  viewer.ShowContents();
  FindBar().Open();
  QTest::keyClick(&viewer, Qt::Key_Escape);
  EXPECT_FALSE(FindBar().isVisible());
  EXPECT_TRUE(viewer.isVisible());
  QTest::keyClick(&viewer, Qt::Key_Escape);
  EXPECT_FALSE(viewer.isVisible());
}

TEST_F(HelpViewerTest, AChangeToDarkColoursRepaintsThePageWithoutLosingItsPlace) {
  viewer.ShowTopic(kHelpMainWindow);
  const QColor before = Page().document()->begin().begin().fragment().charFormat().foreground().color();
  QPalette dark(QColor(50, 50, 50));
  dark.setColor(QPalette::Base, QColor(35, 35, 35));
  viewer.setPalette(dark);
  EXPECT_NE(Page().document()->begin().begin().fragment().charFormat().foreground().color(), before);
  EXPECT_TRUE(Page().toPlainText().startsWith("The main window\n"));
}

TEST_F(HelpViewerTest, EveryButtonCanBeReachedByKeyboardAndHasAName) {
  for (QAction* action : viewer.findChildren<QAction*>()) {
    if (action->isSeparator() || action->associatedObjects().isEmpty()) continue;
    auto* bar = qobject_cast<QToolBar*>(action->associatedObjects().front());
    if (!bar) continue;
    EXPECT_FALSE(action->text().isEmpty());
    EXPECT_FALSE(action->icon().isNull()) << action->text().toStdString();
    EXPECT_FALSE(action->shortcut().isEmpty()) << action->text().toStdString();
    EXPECT_TRUE(bar->widgetForAction(action)->focusPolicy() & Qt::TabFocus);
  }
}

TEST_F(HelpViewerTest, APopupExplainsOneControlWithoutTheHelpWindow) {
  viewer.ShowPopup(kHelpPurgeAge, {100, 100});
  ASSERT_NE(Popup(), nullptr);
  EXPECT_TRUE(Popup()->isVisible());
  EXPECT_EQ(Popup()->accessibleName(), "Purge Age");
  EXPECT_FALSE(viewer.isVisible());
}

TEST_F(HelpViewerTest, APopupGoesAtAnyKey) {
  viewer.ShowPopup(kHelpPurgeAge, {100, 100});
  const QPointer<HelpPopup> popup = Popup();
  QTest::keyClick(popup.data(), Qt::Key_Space);
  EXPECT_FALSE(popup && popup->isVisible());
}

TEST_F(HelpViewerTest, APopupGoesAtAClickOnItsText) {
  viewer.ShowPopup(kHelpPurgeAge, {100, 100});
  const QPointer<HelpPopup> popup = Popup();
  QTest::mouseClick(popup->findChild<QLabel*>(), Qt::LeftButton, {}, {5, 5});
  EXPECT_FALSE(popup && popup->isVisible());
}

TEST_F(HelpViewerTest, APopupStaysOnTheScreen) {
  viewer.ShowPopup(kHelpPurgeAge, {100'000, 100'000});
  // The offscreen platform puts a frame of two pixels around every window, even a popup.
  EXPECT_TRUE(viewer.screen()->availableGeometry().adjusted(0, 0, 2, 2).contains(Popup()->geometry()));
}

TEST_F(HelpViewerTest, ALinkInAPopupOpensTheHelpWindow) {
  viewer.ShowPopup(kHelpPurgeAge, {100, 100});
  Q_EMIT Popup()->findChild<QLabel*>()->linkActivated("remove-old-days");
  EXPECT_TRUE(viewer.isVisible());
  EXPECT_TRUE(Page().toPlainText().startsWith("Removing old days\n"));
}

TEST_F(HelpViewerTest, APopupWithoutATopicOpensTheFriendlyPage) {
  viewer.ShowPopup(9999, {100, 100});
  EXPECT_EQ(Popup(), nullptr);
  EXPECT_TRUE(Page().toPlainText().startsWith("No help on this yet"));
}

TEST(HelpViewerWithoutFile, AMissingHelpFileIsReportedInTheWindow) {
  const testing::TemporaryFolder folder;
  const QString path = QString::fromStdString(folder / "Dayvane.hlp");
  HelpViewer viewer(path);
  viewer.ShowTopic(kHelpMainWindow);
  EXPECT_TRUE(viewer.isVisible());
  const QString page = viewer.findChild<QTextBrowser*>()->toPlainText();
  EXPECT_TRUE(page.startsWith("Help cannot be shown\n"));
  EXPECT_TRUE(page.contains(path));
}

TEST(HelpViewerWithoutFile, ADamagedHelpFileIsReportedInTheWindow) {
  const testing::TemporaryFolder folder;
  HelpViewer viewer(QString::fromStdString(folder.Write("Dayvane.hlp", "Dayvane help 1\ntopic 5")));
  viewer.ShowContents();
  EXPECT_TRUE(viewer.findChild<QTextBrowser*>()->toPlainText().contains("incomplete"));
}

TEST(HelpViewerWithoutFile, AFileThatAppearsLaterIsRead) {
  const testing::TemporaryFolder folder;
  const QString path = QString::fromStdString(folder / "Dayvane.hlp");
  HelpViewer viewer(path);
  viewer.ShowContents();
  ASSERT_TRUE(QFile::copy(QStringLiteral(DAYVANE_HELP_FILE), path));
  viewer.ShowContents();
  EXPECT_TRUE(viewer.findChild<QTextBrowser*>()->toPlainText().startsWith("Dayvane Help\n"));
}

}  // namespace
}  // namespace dayvane::help
