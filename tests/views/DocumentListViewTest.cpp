// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "controls/Keys.h"
#include "tests/support/TestDesktop.h"
#include "views/CDaily.h"
#include "views/CFavorites.h"
#include "views/DocumentListView.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What the user does in either list, and what its owner hears of it.
class DocumentListViewTest : public ::testing::Test {
 protected:
  DocumentListViewTest() {
    list.Add("Ka", "a", 1);
    pane.Move(100, 200, 0, 0);
    list.SetSelectedPosition(10, 20);
    view.SetListControls(&list, &pane);
    view.DblClick.Connect([this](controls::ListItem& item) { heard.push_back("double click " + item.text); });
    view.ItemClick.Connect([this] { heard.emplace_back("click"); });
    view.PopupMenu.Connect([this](double x, double y) {
      heard.push_back("menu " + std::to_string(static_cast<int>(x)) + " " + std::to_string(static_cast<int>(y)));
    });
  }

  void Select() { list.SetSelectedItem(&list.Item("Ka")); }

  testing::TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  controls::ListView list;
  controls::PictureBox pane;
  CFavorites view{application};
  std::vector<std::string> heard;
};

TEST_F(DocumentListViewTest, AClickOnARowIsPassedOn) {
  list.Click(list.Item("Ka"));
  EXPECT_THAT(heard, ElementsAre("click"));
}

TEST_F(DocumentListViewTest, ADoubleClickOpensTheSelectedDocument) {
  Select();
  list.DblClick.Raise();
  EXPECT_THAT(heard, ElementsAre("double click a"));
}

TEST_F(DocumentListViewTest, EnterOpensTheSelectedDocument) {
  Select();
  list.KeyUp.Raise(controls::kKeyReturn, 0);
  EXPECT_THAT(heard, ElementsAre("double click a"));
}

TEST_F(DocumentListViewTest, AltF10ShowsTheMenuAtTheSelectedRow) {
  Select();
  list.KeyUp.Raise(controls::kKeyF10, controls::kAltMask);
  list.KeyUp.Raise(controls::kKeyF10, controls::kAltMask + controls::kShiftMask);
  EXPECT_THAT(heard, ElementsAre("menu 110 220", "menu 110 220"));
}

TEST_F(DocumentListViewTest, F10WithoutAltDoesNothing) {
  Select();
  list.KeyUp.Raise(controls::kKeyF10, 0);
  list.KeyUp.Raise(controls::kKeyF10, controls::kShiftMask);
  list.KeyUp.Raise(controls::kKeyF10, controls::kCtrlMask);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_F(DocumentListViewTest, TheRightButtonShowsTheMenuWhereItWasReleased) {
  Select();
  list.MouseUp.Raise(controls::kRightButton, 5, 7);
  EXPECT_THAT(heard, ElementsAre("menu 105 207"));
}

TEST_F(DocumentListViewTest, TheLeftButtonShowsNoMenu) {
  Select();
  list.MouseUp.Raise(controls::kLeftButton, 5, 7);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_F(DocumentListViewTest, WithoutASelectedRowNothingIsOpenedAndNoMenuShown) {
  list.DblClick.Raise();
  list.KeyUp.Raise(controls::kKeyReturn, 0);
  list.KeyUp.Raise(controls::kKeyF10, controls::kAltMask);
  list.MouseUp.Raise(controls::kRightButton, 5, 7);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_F(DocumentListViewTest, AMissingPaneIsLoggedUnderTheNameOfTheViewAndReported) {
  CDaily daily(application);
  for (DocumentListView* either : {static_cast<DocumentListView*>(&view), static_cast<DocumentListView*>(&daily)}) {
    view.SetListControls(nullptr, nullptr);
    either->SetListControls(&list, nullptr);
    list.KeyUp.Raise(controls::kKeyF10, controls::kAltMask);
    list.MouseUp.Raise(controls::kRightButton, 5, 7);
  }
  const std::string key = "An error occurred processing a document selection.";
  const std::string mouse = "An error occurred displaying a context menu.";
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre(key, mouse, key, mouse));
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre("2\tCFavorites.ListView_KeyUp: Container is Nothing",
                                                            "2\tCFavorites.ListView_MouseUp: Container is Nothing",
                                                            "2\tCDaily.ListView_KeyUp: Container is Nothing",
                                                            "2\tCDaily.ListView_MouseUp: Container is Nothing"));
}

TEST_F(DocumentListViewTest, ASortThatFailsIsReportedUnderTheNameOfTheView) {
  list.Changed.Connect([] { throw Error(kDeviceIoError, "No list"); });
  list.ColumnClick.Raise(2);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred changing the document sort order."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"), ElementsAre("CFavorites.ListView_ColumnClick\t57\tNo list\t"
                                                            "An error occurred changing the document sort order."));
}

TEST_F(DocumentListViewTest, ControlsThatWereTakenAwayAreNotListenedTo) {
  Select();
  view.SetListControls(nullptr, nullptr);
  list.DblClick.Raise();
  EXPECT_THAT(heard, IsEmpty());
}

}  // namespace
}  // namespace dayvane
