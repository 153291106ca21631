// SPDX-License-Identifier: MIT
#include <QAbstractItemModelTester>
#include <QScrollBar>
#include <QTest>
#include <gmock/gmock.h>

#include "linux/widgets/Lengths.h"
#include "tests/linux/widgets/ListTest.h"

namespace dayvane::widgets {
namespace {

using controls::ListItem;
using controls::ListStyle;
using ::testing::ElementsAre;
using ::testing::Pair;

using ListPresenterTest = ListTest;

TEST_F(ListPresenterTest, TheModelKeepsItsPromisesWhileTheListChanges) {
  const QAbstractItemModelTester tester(Present().DetailsView().model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);

  Fill(50);
  m_control.SetSorted(true);
  m_control.Remove("K7");
  m_control.Clear();

  EXPECT_EQ(m_presenter->DetailsView().model()->rowCount(), 0);
}

TEST_F(ListPresenterTest, DetailsAreATableAndTheOtherStylesIcons) {
  ListPresenter& presenter = Present();
  EXPECT_TRUE(presenter.DetailsView().isVisible());

  m_control.SetView(ListStyle::LargeIcons);
  EXPECT_EQ(presenter.IconView().viewMode(), QListView::IconMode);
  m_control.SetView(ListStyle::List);
  EXPECT_EQ(presenter.IconView().flow(), QListView::TopToBottom);

  EXPECT_TRUE(presenter.IconView().isVisible());
  EXPECT_FALSE(presenter.DetailsView().isVisible());
}

TEST_F(ListPresenterTest, TheKeyboardStaysInTheListWhenItsStyleChanges) {
  ListPresenter& presenter = Present();

  m_control.SetView(ListStyle::LargeIcons);

  EXPECT_TRUE(presenter.IconView().hasFocus());
}

TEST_F(ListPresenterTest, TheProgramsSelectionIsShownWithoutAClick) {
  Fill(1000);
  Present();
  int clicks = 0;
  m_control.ItemClick.Connect([&](ListItem&) { ++clicks; });

  m_control.SetSelectedItem(&m_control.Item("K700"));

  EXPECT_EQ(SelectedInWidgets(), "Document 700");
  EXPECT_TRUE(IsInView("K700"));
  EXPECT_EQ(clicks, 0);
}

TEST_F(ListPresenterTest, SelectingNothingClearsTheSelection) {
  Fill(3);
  m_control.SetSelectedItem(&m_control.Item("K1"));
  Present();

  m_control.SetSelectedItem(nullptr);

  EXPECT_EQ(SelectedInWidgets(), "");
}

TEST_F(ListPresenterTest, AClickSelectsTheRowOnce) {
  Fill(5);
  Present();
  std::vector<std::string> clicked;
  m_control.ItemClick.Connect([&](ListItem& item) { clicked.push_back(item.key); });

  MouseClick("K3");

  EXPECT_THAT(clicked, ElementsAre("K3"));
  EXPECT_EQ(m_control.SelectedItem(), m_control.Find("K3"));
}

TEST_F(ListPresenterTest, AClickOnTheSelectedRowIsAClickAgain) {
  Fill(5);
  Present();
  int clicks = 0;
  m_control.ItemClick.Connect([&](ListItem&) { ++clicks; });

  MouseClick("K3");
  MouseClick("K3");

  EXPECT_EQ(clicks, 2);
}

TEST_F(ListPresenterTest, TheArrowKeysMoveTheSelection) {
  Fill(5);
  m_control.SetSelectedItem(&m_control.Item("K1"));
  Present();
  std::vector<std::string> clicked;
  m_control.ItemClick.Connect([&](ListItem& item) { clicked.push_back(item.key); });

  QTest::keyClick(&m_presenter->CurrentView(), Qt::Key_Down);

  EXPECT_THAT(clicked, ElementsAre("K2"));
}

TEST_F(ListPresenterTest, TypingANameGoesToIt) {
  Fill(3);
  m_control.Add("Kz", "Zebra", 0);
  Present();

  QTest::keyClick(&m_presenter->CurrentView(), Qt::Key_Z);

  EXPECT_EQ(m_control.SelectedItem(), m_control.Find("Kz"));
}

TEST_F(ListPresenterTest, ADoubleClickOnARowIsOneOfTheList) {
  Fill(5);
  Present();
  int doubleClicks = 0;
  m_control.DblClick.Connect([&] { ++doubleClicks; });

  QTest::mouseDClick(m_presenter->CurrentView().viewport(), Qt::LeftButton, {}, PlaceOf("K2"));
  QTest::mouseDClick(m_presenter->CurrentView().viewport(), Qt::RightButton, {}, PlaceOf("K2"));
  QTest::mouseDClick(m_presenter->CurrentView().viewport(), Qt::LeftButton, {}, {10, 390});

  EXPECT_EQ(doubleClicks, 1);
}

TEST_F(ListPresenterTest, RowsMayGoWhileTheirDoubleClickIsHeard) {
  Fill(5);
  Present();
  m_control.DblClick.Connect([&] { m_control.Clear(); });

  QTest::mouseDClick(m_presenter->CurrentView().viewport(), Qt::LeftButton, {}, PlaceOf("K2"));

  EXPECT_EQ(m_presenter->CurrentView().model()->rowCount(), 0);
}

TEST_F(ListPresenterTest, TheRightButtonSelectsBeforeItIsReleased) {
  Fill(5);
  Present();
  std::vector<std::pair<int, std::string>> releases;
  m_control.MouseUp.Connect(
      [&](int button, double, double) { releases.emplace_back(button, m_control.SelectedItem()->key); });

  MouseClick("K2", Qt::RightButton);

  EXPECT_THAT(releases, ElementsAre(Pair(2, "K2")));
}

TEST_F(ListPresenterTest, ThePointerIsToldWhereItIsInTheContainer) {
  Fill(5);
  Present().move(100, 50);
  double x = 0;
  double y = 0;
  m_control.MouseUp.Connect([&](int, double left, double top) { x = left, y = top; });

  MouseClick("K2", Qt::RightButton);

  const QPoint expected = m_presenter->CurrentView().viewport()->mapTo(&m_pane, PlaceOf("K2"));
  EXPECT_EQ(QPoint(ToPixels(x, m_pane), ToPixels(y, m_pane)), expected);
  EXPECT_GT(expected.x(), 100);
}

TEST_F(ListPresenterTest, DraggingSelectsNothingElse) {
  Fill(5);
  Present();
  QWidget* viewport = m_presenter->CurrentView().viewport();

  QTest::mousePress(viewport, Qt::LeftButton, {}, PlaceOf("K1"));
  QMouseEvent drag(QEvent::MouseMove, PlaceOf("K3"), viewport->mapToGlobal(PlaceOf("K3")), Qt::NoButton, Qt::LeftButton,
                   {});
  QApplication::sendEvent(viewport, &drag);
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, PlaceOf("K3"));

  EXPECT_EQ(m_control.SelectedItem(), m_control.Find("K1"));
}

TEST_F(ListPresenterTest, EnterAndTheMenuKeysAreHeardAsClassicKeys) {
  Fill(5);
  Present();
  std::vector<std::pair<int, int>> keys;
  m_control.KeyUp.Connect([&](int key, int modifiers) { keys.emplace_back(key, modifiers); });
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});

  QTest::keyClick(&m_presenter->CurrentView(), Qt::Key_Return);
  QTest::keyClick(&m_presenter->CurrentView(), Qt::Key_F10, Qt::AltModifier);
  QApplication::sendEvent(m_presenter->CurrentView().viewport(), &menuKey);

  EXPECT_THAT(keys, ElementsAre(Pair(13, 0), Pair(121, 4), Pair(121, 4)));
}

TEST_F(ListPresenterTest, AKeyThatWasPressedElsewhereIsNotHeard) {
  Fill(5);
  Present();
  int keys = 0;
  m_control.KeyUp.Connect([&](int, int) { ++keys; });

  QTest::keyRelease(&m_presenter->CurrentView(), Qt::Key_Return);

  EXPECT_EQ(keys, 0);
}

TEST_F(ListPresenterTest, TheSelectedRowsPlaceIsKnownWhenItsMenuIsWanted) {
  Fill(5);
  m_control.SetSelectedItem(&m_control.Item("K3"));
  Present();

  QTest::keyClick(&m_presenter->CurrentView(), Qt::Key_F10, Qt::AltModifier);

  QAbstractItemView& view = m_presenter->CurrentView();
  const QPoint row = view.viewport()->mapTo(&m_pane, view.visualRect(view.model()->index(3, 0)).topLeft());
  EXPECT_EQ(ToPixels(m_control.SelectedTop(), m_pane), row.y());
  EXPECT_EQ(ToPixels(m_control.SelectedLeft(), m_pane), row.x());
}

TEST_F(ListPresenterTest, ASelectedRowThatMovesByASortStaysSelectedAndInView) {
  Fill(1000);
  Present();
  MouseClick("K3");

  m_control.SetSortOrder(controls::SortOrder::Descending);
  m_control.SetSorted(true);

  EXPECT_EQ(SelectedInWidgets(), "Document 3");
  EXPECT_TRUE(IsInView("K3"));
}

TEST_F(ListPresenterTest, AListThatIsFilledAgainStaysWhereTheUserScrolledTo) {
  Fill(1000);
  Present();
  MouseClick("K3");
  QScrollBar* scrollBar = m_presenter->CurrentView().verticalScrollBar();
  scrollBar->setValue(500);

  Fill(1001);
  m_control.SetSelectedItem(&m_control.Item("K3"));

  EXPECT_EQ(scrollBar->value(), 500);
  EXPECT_EQ(SelectedInWidgets(), "Document 3");
}

TEST_F(ListPresenterTest, AnotherListStartsAtItsTop) {
  Fill(1000);
  Present();
  m_presenter->CurrentView().verticalScrollBar()->setValue(500);

  {
    const controls::UpdateScope update(m_control);
    m_control.Clear();
    for (int row = 2000; row < 3000; ++row) Add(row);
  }

  EXPECT_TRUE(IsInView("K2000"));
}

TEST_F(ListPresenterTest, ADisabledListTakesNoClicks) {
  Fill(5);
  Present();
  m_control.SetEnabled(false);

  MouseClick("K2");

  EXPECT_EQ(m_control.SelectedItem(), nullptr);
}

TEST_F(ListPresenterTest, AListThatIsAskedForTheKeyboardGetsIt) {
  ListPresenter& presenter = Present();
  presenter.CurrentView().clearFocus();

  m_control.SetFocus();

  EXPECT_TRUE(presenter.DetailsView().hasFocus());
}

TEST_F(ListPresenterTest, ThePresenterMayGoBeforeItsControl) {
  Fill(5);
  Present();

  m_presenter.reset();
  Fill(7);

  EXPECT_EQ(m_control.Count(), 7u);
}

}  // namespace
}  // namespace dayvane::widgets
