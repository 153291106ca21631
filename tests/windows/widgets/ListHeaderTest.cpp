// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/windows/widgets/ListTest.h"
#include "windows/widgets/Lengths.h"

namespace dayvane::widgets {
namespace {

using ::testing::ElementsAre;

class WindowsListHeaderTest : public ListTest {
 protected:
  void SetUp() override {
    Fill(3);
    Present();
  }

  HDITEMW ItemAt(int column) const {
    HDITEMW item{};
    item.mask = HDI_FORMAT | HDI_WIDTH;
    SendMessageW(Header(), HDM_GETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
    return item;
  }

  int Arrow(int column) const { return ItemAt(column).fmt & (HDF_SORTUP | HDF_SORTDOWN); }

  void ClickHeading(int column) {
    RECT place{};
    SendMessageW(Header(), HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&place));
    MouseClick(Header(), {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
  }

  /// As the user's drag does it.
  void DragTo(int column, int width) { SendMessageW(List(), LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), width); }

  int WidthOfAll() const { return WidthOfColumn(0) + WidthOfColumn(1) + WidthOfColumn(2) + WidthOfColumn(3); }
  int Room() const {
    RECT room{};
    GetClientRect(List(), &room);
    return room.right;
  }
};

TEST_F(WindowsListHeaderTest, AClickOnAHeadingIsOneOfItsColumn) {
  std::vector<std::size_t> clicks;
  m_control.ColumnClick.Connect([&](std::size_t column) { clicks.push_back(column); });

  ClickHeading(0);
  ClickHeading(2);

  EXPECT_THAT(clicks, ElementsAre(1U, 3U));
}

TEST_F(WindowsListHeaderTest, TheArrowShowsTheControlsSort) {
  m_control.SetSortKey(1);
  m_control.SetSorted(true);
  EXPECT_EQ(Arrow(1), HDF_SORTUP);

  m_control.SetSortKey(3);
  m_control.SetSortOrder(controls::SortOrder::Descending);

  EXPECT_EQ(Arrow(1), 0);
  EXPECT_EQ(Arrow(3), HDF_SORTDOWN);
}

TEST_F(WindowsListHeaderTest, ColumnsAreAsWideAsTheControlSays) {
  m_control.SetColumnWidth(1, 3000);

  EXPECT_EQ(WidthOfColumn(1), ToPixels(3000, m_window.CurrentLook()->Dpi()));
}

TEST_F(WindowsListHeaderTest, AColumnThatTheUserWidensLeavesTheOthersAsTheyWereShown) {
  const int name = WidthOfColumn(0);

  DragTo(2, 123);

  const UINT dpi = m_window.CurrentLook()->Dpi();
  EXPECT_EQ(ToPixels(m_control.Columns()[2].width, dpi), 123);
  EXPECT_EQ(ToPixels(m_control.Columns()[0].width, dpi), name);
  EXPECT_EQ(WidthOfColumn(0), name);
}

TEST_F(WindowsListHeaderTest, UntouchedColumnsFillTheListAndStayUntouched) {
  EXPECT_EQ(WidthOfAll(), Room());
  MoveWindow(List(), 0, 0, 650, 400, TRUE);

  EXPECT_EQ(WidthOfAll(), Room());
  EXPECT_TRUE(m_control.HasDesignWidths());
}

TEST_F(WindowsListHeaderTest, NameAndPathShareTheRestAsTheyNeedIt) {
  const int path = WidthOfColumn(2);
  m_control.Item("K1").subItems[1] = "C:\\Users\\ana\\Documents\\Reports\\2026\\November\\Spring and summer";

  m_control.Add("Kx", "x", 0);

  EXPECT_GT(WidthOfColumn(2), path);
  EXPECT_EQ(WidthOfAll(), Room());
}

TEST_F(WindowsListHeaderTest, AWidthOutOfAnyScreenDoesNoHarm) {
  m_control.SetColumnWidth(0, 1e300);
  m_control.SetColumnWidth(1, -1e300);
  UpdateWindow(List());

  EXPECT_GE(WidthOfColumn(0), 0);
}

TEST_F(WindowsListHeaderTest, AColumnOfNumbersStandsToTheRight) {
  m_control.SetColumns({{"Name"}, {"Days", controls::ColumnKind::Short, controls::Alignment::Right}});

  EXPECT_EQ(ItemAt(1).fmt & HDF_JUSTIFYMASK, HDF_RIGHT);
  EXPECT_EQ(SendMessageW(Header(), HDM_GETITEMCOUNT, 0, 0), 2);
}

}  // namespace
}  // namespace dayvane::widgets
