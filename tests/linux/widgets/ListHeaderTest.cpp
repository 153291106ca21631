// SPDX-License-Identifier: MIT
#include <QHeaderView>
#include <QTest>
#include <gmock/gmock.h>

#include "linux/widgets/Lengths.h"
#include "linux/widgets/ListPresenter.h"

namespace dayvane::widgets {
namespace {

using ::testing::ElementsAre;

/// The columns of a list of documents, in a window of its own.
class ListHeaderTest : public ::testing::Test {
 protected:
  ListHeaderTest() {
    m_control.SetColumns({{"Name"}, {"Type"}, {"Path"}, {"Modified"}});
    m_pane.resize(600, 400);
    m_presenter.resize(m_pane.size());
    m_pane.show();
    (void)QTest::qWaitForWindowActive(&m_pane);
  }

  void Click(int column) { QTest::mouseClick(m_header.viewport(), Qt::LeftButton, {}, PlaceOf(column)); }
  QPoint PlaceOf(int column) const { return {m_header.sectionViewportPosition(column) + 20, 8}; }

  controls::ListView m_control;
  Icons m_icons;
  QWidget m_pane;
  ListPresenter m_presenter{m_control, m_icons, &m_pane};
  QHeaderView& m_header = *m_presenter.DetailsView().header();
};

TEST_F(ListHeaderTest, AClickOnAHeaderIsOneOfItsColumn) {
  std::vector<std::size_t> columns;
  m_control.ColumnClick.Connect([&](std::size_t column) { columns.push_back(column); });

  Click(1);

  EXPECT_THAT(columns, ElementsAre(2));
}

TEST_F(ListHeaderTest, TwoQuickClicksOnAHeaderAreTwo) {
  std::vector<std::size_t> columns;
  m_control.ColumnClick.Connect([&](std::size_t column) { columns.push_back(column); });

  Click(1);
  QTest::mouseDClick(m_header.viewport(), Qt::LeftButton, {}, PlaceOf(1));

  EXPECT_THAT(columns, ElementsAre(2, 2));
}

TEST_F(ListHeaderTest, TheArrowShowsTheControlsSort) {
  EXPECT_FALSE(m_header.isSortIndicatorShown());

  m_control.SetSortKey(2);
  m_control.SetSortOrder(controls::SortOrder::Descending);
  m_control.SetSorted(true);

  EXPECT_TRUE(m_header.isSortIndicatorShown());
  EXPECT_EQ(m_header.sortIndicatorSection(), 2);
  EXPECT_EQ(m_header.sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST_F(ListHeaderTest, AHeaderClickThatSortsNothingLeavesTheArrowAlone) {
  m_control.SetSorted(true);

  Click(1);

  EXPECT_EQ(m_header.sortIndicatorSection(), 0);
  EXPECT_EQ(m_header.sortIndicatorOrder(), Qt::AscendingOrder);
}

TEST_F(ListHeaderTest, ColumnsAreAsWideAsTheControlSays) {
  m_control.SetColumnWidth(1, 3000);

  EXPECT_EQ(m_header.sectionSize(1), ToPixels(3000, m_pane));
}

TEST_F(ListHeaderTest, ColumnsThatTheUserWidensAreWideInTheControl) {
  m_header.resizeSection(2, 222);

  EXPECT_EQ(m_control.Columns()[2].width, ToTwips(222, m_pane));
}

TEST_F(ListHeaderTest, AWidthOutOfAnyScreenDoesNoHarm) {
  m_control.SetColumnWidth(1, 1e300);
  m_control.SetColumnWidth(2, -1e300);

  EXPECT_GT(m_header.sectionSize(1), 1000);
  EXPECT_GT(m_header.sectionSize(2), 0);
  EXPECT_EQ(m_control.Columns()[1].width, 1e300);
}

}  // namespace
}  // namespace dayvane::widgets
