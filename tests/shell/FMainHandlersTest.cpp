// SPDX-License-Identifier: MIT
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "controls/Keys.h"
#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

[[noreturn]] void Fail() {
  throw Error(kDeviceIoError, "Broken");
}

/// The main window on the day of one document; what shows the controls can fail.
class HandlersTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  HandlersTest() {
    desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-21 09:15:00");
    Load();
    window.form.Activate.Raise();
  }

  controls::ListItem& Document() { return window.lvwDaily.Item(Key("2026\\November\\21\\a.odt.lnk")); }

  /// What the user is told of, and from where, by a control that fails when something acts on it.
  void ExpectReport(const std::string& source, const std::string& phrase, const std::function<void()>& act) {
    EXPECT_NO_THROW(act());
    EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred " + phrase));
    EXPECT_THAT(desktop.LogLines("ErrorLog.txt"), ElementsAre(StartsWith(source + "\t57\tBroken")));
  }
};

TEST_F(HandlersTest, AColumnClickThatFailsIsReported) {
  window.lvwDaily.Changed.Connect(Fail);
  ExpectReport("CDaily.ListView_ColumnClick", "changing the document sort order.",
               [this] { window.lvwDaily.ColumnClick.Raise(3); });
}

TEST_F(HandlersTest, AColumnClickOnTheFavoritesThatFailsIsReported) {
  window.lvwFavorites.Changed.Connect(Fail);
  ExpectReport("CFavorites.ListView_ColumnClick", "changing the document sort order.",
               [this] { window.lvwFavorites.ColumnClick.Raise(3); });
}

TEST_F(HandlersTest, AClickOnADocumentThatFailsIsReported) {
  window.mnuToolsPopup[kToolsExplore].Changed.Connect(Fail);
  ExpectReport("FMain.m_oDaily_ListViewItemClick", "processing a document selection.",
               [this] { window.lvwDaily.Click(Document()); });
}

TEST_F(HandlersTest, ADoubleClickThatFailsIsReported) {
  window.lvwDaily.SetSelectedItem(&Document());
  window.sbrMain.RefreshWanted.Connect(Fail);
  ExpectReport("FMain.m_oDaily_ListViewDblClick", "opening a document.", [this] { window.lvwDaily.DblClick.Raise(); });
}

TEST_F(HandlersTest, ADocumentListsOwnHandlersReportToo) {
  controls::ListView list;
  controls::PictureBox pane;
  list.SetSelectedItem(&list.Add("Ka", "a", 1));
  CFavorites view(application);
  view.SetListControls(&list, &pane);
  view.DblClick.Connect([](controls::ListItem&) { Fail(); });
  view.ItemClick.Connect(Fail);
  view.PopupMenu.Connect([](double, double) { Fail(); });
  list.DblClick.Raise();
  list.Click(*list.SelectedItem());
  list.KeyUp.Raise(controls::kKeyReturn, 0);
  list.MouseUp.Raise(controls::kRightButton, 0, 0);
  EXPECT_THAT(
      desktop.LogLines("ErrorLog.txt"),
      ElementsAre("CFavorites.ListView_DblClick\t57\tBroken\tAn error occurred opening a document.",
                  "CFavorites.ListView_ItemClick\t57\tBroken\tAn error occurred processing a document selection.",
                  "CFavorites.ListView_KeyUp\t57\tBroken\tAn error occurred processing a document selection.",
                  "CFavorites.ListView_MouseUp\t57\tBroken\tAn error occurred displaying a context menu."));
}

TEST_F(HandlersTest, AClickInTheTreeThatFailsIsReported) {
  controls::TreeView tree;
  controls::ListView list;
  controls::PictureBox pane;
  CDaily daily(application);
  daily.SetControls(&tree, &list, &pane);
  daily.TreeViewNodeClick.Connect([](controls::TreeNode&) { Fail(); });
  ExpectReport("CDaily.TreeView_NodeClick", "processing a document selection.",
               [&] { tree.Click(tree.AddRoot("Kroot", "Daily", 1)); });
}

TEST_F(HandlersTest, AToolbarThatCannotBeSizedIsReported) {
  window.linToolbar[0].Changed.Connect(Fail);
  ExpectReport("FMain.picMain_Resize", "resizing the main window.",
               [this] { window.picMain[3].Move(0, 0, 9000, 400); });
}

TEST_F(HandlersTest, ADateThatCannotBeShownIsReported) {
  window.lvwDaily.Clear();
  window.sbrMain.Changed.Connect(Fail);
  ExpectReport("FMain.m_oCalendar_DateChange", "selecting a date.",
               [this] { window.calMain.SetCurrentDate(std::chrono::local_days{std::chrono::year{2026} / 11 / 1}); });
}

TEST_F(HandlersTest, ADateThatCannotBeSplitIsReported) {
  desktop.dates.shortDate = "d";
  window.calMain.SetCurrentDate(std::chrono::local_days{std::chrono::year{2026} / 11 / 1});
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred selecting a date."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"), ElementsAre(StartsWith("CCalendar.Calendar_DateChange\t13\t")));
}

TEST_F(HandlersTest, AYearThatTheProgramCannotSpellIsNotChosen) {
  const auto before = window.calMain.CurrentDate();
  for (const int year : {-4, 0, 99, 10000})
    window.calMain.SetCurrentDate(std::chrono::local_days{std::chrono::year{year} / 11 / 1});
  EXPECT_EQ(window.calMain.CurrentDate(), before);
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

}  // namespace
}  // namespace dayvane
