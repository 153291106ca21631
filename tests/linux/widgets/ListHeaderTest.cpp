// SPDX-License-Identifier: MIT
#include <QHeaderView>
#include <QTest>
#include <gmock/gmock.h>

#include "linux/widgets/Lengths.h"
#include "linux/widgets/ListPresenter.h"

namespace dayvane::widgets {
namespace {

using controls::ColumnHeader;
using controls::ColumnKind;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Field;

/// The columns of a list of documents, in a window of its own.
class ListHeaderTest : public ::testing::Test {
 protected:
  ListHeaderTest() {
    m_control.SetColumns({{"Name", ColumnKind::Name}, {"Type"}, {"Path", ColumnKind::Path}, {"Modified"}});
    m_pane.resize(600, 400);
    m_presenter.resize(m_pane.size());
    m_pane.show();
    (void)QTest::qWaitForWindowActive(&m_pane);
  }

  void Fill(const std::string& name, const std::string& path, const std::string& modified = "09:15") {
    const controls::UpdateScope update(m_control);
    auto& item = m_control.Add("K" + std::to_string(m_control.Count()), name, 1);
    item.subItems = {"OpenDocument Text", path, modified};
  }
  int WidthOf(const QString& text) const { return m_presenter.fontMetrics().horizontalAdvance(text); }
  int Room() { return m_presenter.DetailsView().viewport()->width(); }

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

TEST_F(ListHeaderTest, UntouchedColumnsFillTheListAndStayUntouched) {
  Fill("Report.odt", "/srv/reports");

  EXPECT_EQ(m_header.length(), Room());
  EXPECT_THAT(m_control.Columns(), Each(Field(&ColumnHeader::width, ColumnHeader::kDesignWidth)));
}

TEST_F(ListHeaderTest, ShortTextsHaveTheRoomTheyNeedAndNoMore) {
  Fill("Report.odt", "/srv/reports");

  EXPECT_GE(m_header.sectionSize(1), WidthOf("OpenDocument Text"));
  EXPECT_LE(m_header.sectionSize(1), WidthOf("OpenDocument Text") + 40);
  EXPECT_GE(m_header.sectionSize(3), WidthOf("Modified"));
}

TEST_F(ListHeaderTest, NameAndPathShareTheRestAsTheyNeedIt) {
  Fill("Minutes of the meeting of the board on the new harbour.odt", "/srv");
  const int name = m_header.sectionSize(0);
  EXPECT_GE(name, WidthOf("Minutes of the meeting of the board on the ne"));

  m_control.Clear();
  Fill("a.odt", "/srv/documents/of/the/board/on/the/new/harbour/and/its/quay");

  EXPECT_LT(m_header.sectionSize(0), name);
  EXPECT_GT(m_header.sectionSize(2), m_header.sectionSize(0));
  EXPECT_EQ(m_header.length(), Room());
}

TEST_F(ListHeaderTest, ALongNameAndALongPathLeaveEachOtherRoom) {
  Fill(std::string(200, 'n'), "/" + std::string(200, 'p'));

  EXPECT_GT(m_header.sectionSize(0), 100);
  EXPECT_GT(m_header.sectionSize(2), 60);
  EXPECT_EQ(m_header.length(), Room());
}

TEST_F(ListHeaderTest, UntouchedColumnsFollowTheListsWidth) {
  Fill("Report.odt", "/srv/reports");
  m_presenter.resize(500, 400);
  QCoreApplication::processEvents();
  const int narrow = m_header.length();

  m_presenter.resize(900, 400);
  QCoreApplication::processEvents();

  EXPECT_EQ(m_header.length(), Room());
  EXPECT_GT(m_header.length(), narrow);
}

TEST_F(ListHeaderTest, AListTooNarrowForItsColumnsScrolls) {
  Fill("Report.odt", "/srv/reports");
  m_presenter.resize(200, 400);
  QCoreApplication::processEvents();

  EXPECT_GT(m_header.length(), Room());
  EXPECT_GT(m_header.sectionSize(0), 60);
}

TEST_F(ListHeaderTest, UntouchedColumnsGrowWithTheUsersFont) {
  Fill("Report.odt", "/srv/reports");
  const int before = m_header.sectionSize(1);

  QFont large = m_presenter.font();
  large.setPointSize(2 * large.pointSize());
  m_presenter.setFont(large);
  QCoreApplication::processEvents();

  EXPECT_GT(m_header.sectionSize(1), before + 20);
}

TEST_F(ListHeaderTest, AColumnThatTheUserWidensLeavesTheOthersAsTheyWereShown) {
  Fill("Report.odt", "/srv/reports");
  const int type = m_header.sectionSize(1);

  m_header.resizeSection(0, 150);

  EXPECT_EQ(m_header.sectionSize(0), 150);
  EXPECT_EQ(m_header.sectionSize(1), type);
  EXPECT_EQ(m_control.Columns()[1].width, ToTwips(type, m_pane));
  m_presenter.resize(900, 400);
  QCoreApplication::processEvents();
  EXPECT_EQ(m_header.sectionSize(0), 150);
}

TEST_F(ListHeaderTest, ASelectedRowReachesToTheEdgeOfTheListWhenItsColumnsEndBefore) {
  Fill("Report.odt", "/srv/reports");
  m_control.SetSelectedItem(&m_control.Item("K0"));
  for (int column = 0; column < 4; ++column) m_header.resizeSection(column, 60);

  QTreeView& rows = m_presenter.DetailsView();
  const QRect row = rows.visualRect(rows.model()->index(0, 0));
  const QImage picture = rows.viewport()->grab().toImage();

  const auto atEdge = [&](int y) { return picture.pixelColor(rows.viewport()->width() - 3, y); };

  EXPECT_NEAR(atEdge(row.top() + 3).lightness(), picture.pixelColor(row.right() - 2, row.top() + 3).lightness(), 10);
  EXPECT_NE(atEdge(row.bottom() + 20), atEdge(row.top() + 3));
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
