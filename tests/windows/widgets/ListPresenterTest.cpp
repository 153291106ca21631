// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <optional>

#include "controls/Keys.h"
#include "tests/windows/widgets/ListTest.h"
#include "windows/widgets/Lengths.h"
#include "windows/widgets/TextCut.h"

namespace dayvane::widgets {
namespace {

using controls::ListItem;
using controls::ListStyle;
using ::testing::ElementsAre;
using ::testing::Pair;

using WindowsListTest = ListTest;

TEST_F(WindowsListTest, EveryCellShowsTheControlsText) {
  Fill(3);
  m_control.Item("K1").text = "Αλφα 文書";
  Present();

  EXPECT_EQ(TextAt(1, 0), "Αλφα 文書");
  EXPECT_EQ(TextAt(2, 2), "C:\\Users\\ana");
  EXPECT_EQ(TextAt(2, 3), "10:00");
}

TEST_F(WindowsListTest, EveryStyleIsTheListsOwn) {
  Fill(3);
  Present();
  std::vector<LRESULT> views;
  for (const auto style : {ListStyle::LargeIcons, ListStyle::SmallIcons, ListStyle::List, ListStyle::Details}) {
    m_control.SetView(style);
    HandleMessages();
    views.push_back(SendMessageW(List(), LVM_GETVIEW, 0, 0));
  }

  EXPECT_THAT(views, ElementsAre(LV_VIEW_ICON, LV_VIEW_SMALLICON, LV_VIEW_LIST, LV_VIEW_DETAILS));
}

TEST_F(WindowsListTest, IconsStandBesideEachOtherWhateverTheStyleBefore) {
  Fill(3);
  Present();

  m_control.SetView(ListStyle::LargeIcons);

  EXPECT_EQ(RectOf("K1", LVIR_ICON).top, RectOf("K0", LVIR_ICON).top);
  EXPECT_GE(RectOf("K1", LVIR_ICON).left, RectOf("K0", LVIR_ICON).right);
}

TEST_F(WindowsListTest, FiftyThousandRowsAreShownWithoutACopy) {
  Fill(50'000);
  Present();

  m_control.Item("K49999").text = "Later";

  EXPECT_EQ(SendMessageW(List(), LVM_GETITEMCOUNT, 0, 0), 50'000);
  EXPECT_EQ(TextAt(49'999, 0), "Later");
}

TEST_F(WindowsListTest, TheProgramsSelectionIsShownWithoutAClick) {
  Fill(1000);
  Present();
  int clicks = 0;
  m_control.ItemClick.Connect([&](ListItem&) { ++clicks; });

  m_control.SetSelectedItem(&m_control.Item("K700"));

  EXPECT_EQ(SelectedRow(), 700);
  EXPECT_TRUE(IsInView("K700"));
  EXPECT_EQ(clicks, 0);
}

TEST_F(WindowsListTest, SelectingNothingClearsTheSelection) {
  Fill(3);
  m_control.SetSelectedItem(&m_control.Item("K1"));
  Present();
  EXPECT_EQ(SelectedRow(), 1);

  m_control.SetSelectedItem(nullptr);

  EXPECT_EQ(SelectedRow(), -1);
}

TEST_F(WindowsListTest, AClickSelectsTheRowOnce) {
  Fill(5);
  Present();
  std::vector<std::string> clicked;
  m_control.ItemClick.Connect([&](ListItem& item) { clicked.push_back(item.key); });

  Click("K3");

  EXPECT_THAT(clicked, ElementsAre("K3"));
  EXPECT_EQ(m_control.SelectedKey(), "K3");
}

TEST_F(WindowsListTest, AClickOnTheSelectedRowIsAClickAgain) {
  Fill(5);
  Present();
  int clicks = 0;
  m_control.ItemClick.Connect([&](ListItem&) { ++clicks; });

  Click("K3");
  Click("K3");

  EXPECT_EQ(clicks, 2);
}

TEST_F(WindowsListTest, AClickBesideTheRowsSelectsNothing) {
  Fill(2);
  Present();
  Click("K1");

  MouseClick(List(), {20, 380});

  EXPECT_EQ(m_control.SelectedItem(), nullptr);
}

TEST_F(WindowsListTest, TheArrowKeysMoveTheSelection) {
  Fill(5);
  m_control.SetSelectedItem(&m_control.Item("K1"));
  Present();
  std::vector<std::string> clicked;
  m_control.ItemClick.Connect([&](ListItem& item) { clicked.push_back(item.key); });

  Press(List(), VK_DOWN);

  EXPECT_THAT(clicked, ElementsAre("K2"));
}

TEST_F(WindowsListTest, AMoveInTheMiddleOfWorkIsAClickAfterIt) {
  Fill(5);
  m_control.SetSelectedItem(&m_control.Item("K1"));
  Present();
  int clicks = 0;
  m_control.ItemClick.Connect([&](ListItem&) { ++clicks; });
  std::optional<controls::WorkScope> work(std::in_place);

  Press(List(), VK_DOWN);
  EXPECT_EQ(clicks, 0);
  work.reset();
  controls::ActOnDeferred();

  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(m_control.SelectedKey(), "K2");
}

TEST_F(WindowsListTest, TypingANameGoesToIt) {
  Fill(3);
  m_control.Add("Kz", "Ζέβρα", 0);
  Present();

  SendMessageW(List(), WM_CHAR, L'ζ', 1);

  EXPECT_EQ(m_control.SelectedKey(), "Kz");
}

TEST_F(WindowsListTest, ADoubleClickOnARowIsOneOfTheList) {
  Fill(5);
  Present();
  int doubleClicks = 0;
  m_control.DblClick.Connect([&] { ++doubleClicks; });

  DoubleClick(PlaceOf("K2"));
  DoubleClick({20, 380});

  EXPECT_EQ(doubleClicks, 1);
}

TEST_F(WindowsListTest, RowsMayGoWhileTheirDoubleClickIsHeard) {
  Fill(5);
  Present();
  m_control.DblClick.Connect([&] { m_control.Clear(); });

  DoubleClick(PlaceOf("K2"));
  HandleMessages();

  EXPECT_EQ(SendMessageW(List(), LVM_GETITEMCOUNT, 0, 0), 0);
}

TEST_F(WindowsListTest, TheRightButtonSelectsBeforeItIsReleased) {
  Fill(5);
  Present();
  std::vector<std::pair<int, std::string>> releases;
  m_control.MouseUp.Connect(
      [&](int button, double, double) { releases.emplace_back(button, m_control.SelectedKey()); });

  Click("K2", VK_RBUTTON);

  EXPECT_THAT(releases, ElementsAre(Pair(2, "K2")));
}

TEST_F(WindowsListTest, ThePointerIsToldWhereItIsInTheContainer) {
  Fill(5);
  Present();
  MoveWindow(List(), 100, 50, 500, 300, TRUE);
  POINT told{};
  m_control.MouseUp.Connect([&](int, double x, double y) {
    told = {ToPixels(x, m_window.CurrentLook()->Dpi()), ToPixels(y, m_window.CurrentLook()->Dpi())};
  });

  Click("K2", VK_RBUTTON);

  POINT expected = PlaceOf("K2");
  MapWindowPoints(List(), m_window.Handle(), &expected, 1);
  EXPECT_EQ(told.x, expected.x);
  EXPECT_EQ(told.y, expected.y);
  EXPECT_GT(told.x, 100);
}

TEST_F(WindowsListTest, EnterAndTheMenuKeysAreHeardAsClassicKeys) {
  Fill(5);
  m_control.SetSelectedItem(&m_control.Item("K3"));
  Present();
  std::vector<std::pair<int, int>> keys;
  m_control.KeyUp.Connect([&](int key, int modifiers) { keys.emplace_back(key, modifiers); });

  Press(List(), VK_RETURN);
  HoldKey(VK_MENU, true);
  SendMessageW(List(), WM_SYSKEYDOWN, VK_F10, 0x20000001);
  SendMessageW(List(), WM_SYSKEYUP, VK_F10, static_cast<LPARAM>(0xE0000001));
  HoldKey(VK_MENU, false);
  SendMessageW(List(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(List()), -1);

  EXPECT_THAT(keys, ElementsAre(Pair(13, 0), Pair(121, 4), Pair(121, 4)));
  EXPECT_EQ(ToPixels(m_control.SelectedTop(), m_window.CurrentLook()->Dpi()), RectOf("K3", LVIR_BOUNDS).top + 2);
}

TEST_F(WindowsListTest, AKeyThatWasPressedElsewhereIsNotHeard) {
  Fill(5);
  Present();
  int keys = 0;
  m_control.KeyUp.Connect([&](int, int) { ++keys; });

  SendMessageW(List(), WM_KEYUP, VK_RETURN, static_cast<LPARAM>(0xC0000001));
  SendMessageW(List(), WM_KEYDOWN, VK_RETURN, 1);
  SetFocus(m_window.Handle());
  SendMessageW(List(), WM_KEYUP, VK_RETURN, static_cast<LPARAM>(0xC0000001));

  EXPECT_EQ(keys, 0);
}

TEST_F(WindowsListTest, ASelectedRowThatMovesByASortStaysSelectedAndInView) {
  Fill(1000);
  Present();
  Click("K3");

  m_control.SetSortOrder(controls::SortOrder::Descending);
  m_control.SetSorted(true);

  EXPECT_EQ(m_control.Row(static_cast<std::size_t>(SelectedRow())).key, "K3");
  EXPECT_TRUE(IsInView("K3"));
}

TEST_F(WindowsListTest, AListThatIsFilledAgainStaysWhereTheUserScrolledTo) {
  Fill(1000);
  Present();
  Click("K3");
  SendMessageW(List(), LVM_ENSUREVISIBLE, 500, FALSE);
  const int top = TopRow();

  Fill(1001);
  EXPECT_EQ(TopRow(), top);
  m_control.SetSelectedItem(&m_control.Item("K3"));

  EXPECT_EQ(TopRow(), top);
  EXPECT_EQ(SelectedRow(), 3);
}

TEST_F(WindowsListTest, AnotherListStartsAtItsTop) {
  Fill(1000);
  Present();
  SendMessageW(List(), LVM_ENSUREVISIBLE, 500, FALSE);
  {
    const controls::UpdateScope update(m_control);
    m_control.Clear();
    for (int row = 2000; row < 3000; ++row) Add(row);
  }

  EXPECT_EQ(TopRow(), 0);
}

TEST_F(WindowsListTest, RowsThatAreBeingExchangedAreNotAskedFor) {
  Fill(50);
  Present();
  const controls::UpdateScope update(m_control);
  m_control.Clear();

  InvalidateRect(List(), nullptr, TRUE);
  UpdateWindow(List());

  EXPECT_EQ(TextAt(7, 0), "");
}

TEST_F(WindowsListTest, ADisabledListTakesNoClicks) {
  Fill(5);
  Present();

  m_control.SetEnabled(false);

  EXPECT_EQ(IsWindowEnabled(List()), FALSE);
}

TEST_F(WindowsListTest, AListThatIsAskedForTheKeyboardGetsIt) {
  Present();
  SetFocus(m_window.Handle());

  m_control.SetFocus();

  EXPECT_EQ(GetFocus(), List());
}

TEST_F(WindowsListTest, AListWithoutRowsSaysWhyToScreenReadersToo) {
  Present();
  m_presenter->SetListName("Documents of the day");
  m_presenter->SetSpokenDetail("May 2026");
  m_control.SetEmptyText("Nothing was opened.");
  EXPECT_EQ(TextOf(List()), "Documents of the day, May 2026. Nothing was opened.");

  Fill(1);

  EXPECT_EQ(TextOf(List()), "Documents of the day, May 2026");
}

TEST_F(WindowsListTest, ThePresenterMayGoBeforeItsControl) {
  Fill(5);
  Present();

  m_presenter.reset();
  Fill(7);

  EXPECT_EQ(m_control.Count(), 7U);
}

TEST_F(WindowsListTest, ALongPathIsCutInItsMiddle) {
  const std::wstring path = L"C:\\Users\\ana\\Documents\\Reports\\2026\\November\\Spring\\Report.odt";
  HFONT font = m_window.CurrentLook()->TextFont();
  const int width = TextSize(font, path.c_str()).cx / 2;

  const std::wstring cut = CutInTheMiddle(path, font, width);

  EXPECT_LE(TextSize(font, cut.c_str()).cx, width);
  EXPECT_EQ(cut.substr(0, 5), L"C:\\Us");
  EXPECT_EQ(cut.substr(cut.size() - 4), L".odt");
  EXPECT_EQ(CutInTheMiddle(path, font, 3 * width), path);
}

TEST_F(WindowsListTest, NoCharacterIsCutInHalf) {
  HFONT font = m_window.CurrentLook()->TextFont();
  const std::wstring text = L"\xD83D\xDE00\xD83D\xDE00\xD83D\xDE00\xD83D\xDE00";

  for (int width = 0; width < TextSize(font, text.c_str()).cx; ++width)
    EXPECT_TRUE(files::FromWide(CutInTheMiddle(text, font, width)).has_value()) << width;
}

}  // namespace
}  // namespace dayvane::widgets
