// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/windows/widgets/TestWindow.h"
#include "windows/widgets/DayWords.h"
#include "windows/widgets/Lengths.h"
#include "windows/widgets/TreePresenter.h"

namespace dayvane::widgets {
namespace {

using controls::TreeNode;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

/// A tree of years, months and days in a window of its own.
class WindowsTreeTest : public ::testing::Test {
 protected:
  WindowsTreeTest() {
    m_control.NodeClick.Connect([this](TreeNode& node) { m_clicked.push_back(node.key); });
  }

  /// Two years of two months of 28 days.
  void Fill(int days = 28) {
    const controls::UpdateScope update(m_control);
    m_control.Clear();
    m_control.AddRoot("K", "Daily", 1);
    for (const std::string year : {"2023", "2024"}) {
      m_control.AddChild("K", "K" + year, year, 2);
      for (const std::string month : {"January", "May"}) AddMonth("K" + year, month, days);
    }
  }

  void AddMonth(const std::string& year, const std::string& month, int days) {
    m_control.AddChild(year, year + month, month, 3);
    for (int day = 1; day <= days; ++day)
      m_control.AddChild(year + month, year + month + std::to_string(day), std::to_string(day), 4);
  }

  HWND Present() {
    m_presenter = std::make_unique<TreePresenter>(m_control, m_icons, m_window.Handle(), m_window.CurrentLook());
    MoveWindow(Tree(), 20, 30, 300, 200, TRUE);
    SetFocus(Tree());
    HandleMessages();
    return Tree();
  }

  HWND Tree() const { return m_presenter->Handle(); }
  HTREEITEM ItemOf(const std::string& key) const { return m_presenter->ItemOf(&m_control.Node(key)); }

  LRESULT Ask(UINT message, WPARAM wParam, HTREEITEM item) const {
    return SendMessageW(Tree(), message, wParam, reinterpret_cast<LPARAM>(item));
  }

  std::string TextOfItem(HTREEITEM item) const {
    wchar_t text[100]{};
    TVITEMW shown{};
    shown.mask = TVIF_TEXT | TVIF_HANDLE;
    shown.hItem = item;
    shown.pszText = text;
    shown.cchTextMax = 100;
    SendMessageW(Tree(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&shown));
    return files::FromWide(text).value_or("");
  }

  bool IsOpen(const std::string& key) const {
    const auto state = SendMessageW(Tree(), TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(ItemOf(key)), TVIS_EXPANDED);
    return (state & TVIS_EXPANDED) != 0;
  }

  std::string Selected() const {
    const auto item = reinterpret_cast<HTREEITEM>(Ask(TVM_GETNEXTITEM, TVGN_CARET, nullptr));
    return item == nullptr ? "" : TextOfItem(item);
  }

  std::string TopText() const {
    return TextOfItem(reinterpret_cast<HTREEITEM>(Ask(TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE, nullptr)));
  }

  RECT RectOf(const std::string& key) const {
    RECT place{};
    *reinterpret_cast<HTREEITEM*>(&place) = ItemOf(key);
    SendMessageW(Tree(), TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place));
    return place;
  }

  POINT PlaceOf(const std::string& key) const {
    const RECT place = RectOf(key);
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  }

  bool IsInView(const std::string& key) const {
    RECT room{};
    GetClientRect(Tree(), &room);
    return PtInRect(&room, PlaceOf(key)) != 0;
  }

  void Open(const std::string& key) {
    Ask(TVM_SELECTITEM, TVGN_CARET, ItemOf(key));
    Press(Tree(), VK_RIGHT);
  }

  void Click(const std::string& key, int button = VK_LBUTTON) { MouseClick(Tree(), PlaceOf(key), button); }

  TestWindow m_window;
  controls::TreeView m_control;
  Icons m_icons;
  std::unique_ptr<TreePresenter> m_presenter;
  std::vector<std::string> m_clicked;
};

TEST_F(WindowsTreeTest, NodesShowTheirTextsBelowTheirParents) {
  Fill();
  Present();

  EXPECT_EQ(TextOfItem(ItemOf("K2024May")), "May");
  EXPECT_EQ(reinterpret_cast<HTREEITEM>(Ask(TVM_GETNEXTITEM, TVGN_PARENT, ItemOf("K2024May"))), ItemOf("K2024"));
}

TEST_F(WindowsTreeTest, ATreeOpensWithItsRootOpen) {
  Fill();
  Present();

  EXPECT_TRUE(IsOpen("K"));
  EXPECT_FALSE(IsOpen("K2024"));
}

TEST_F(WindowsTreeTest, ANodeHasThePictureOfItsLevel) {
  controls::ImageList images;
  for (const int level : {1, 2, 3, 4}) images.Add({{}, level});
  m_control.SetImages(&images);
  Fill();
  Present();
  const auto imageOf = [&](const std::string& key) {
    TVITEMW shown{};
    shown.mask = TVIF_IMAGE | TVIF_HANDLE;
    shown.hItem = ItemOf(key);
    SendMessageW(Tree(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&shown));
    return shown.iImage;
  };

  EXPECT_EQ(imageOf("K2023"), imageOf("K2024"));
  EXPECT_NE(imageOf("K2023"), imageOf("K"));
}

TEST_F(WindowsTreeTest, TheProgramsSelectionIsOpenedUpAndInViewWithoutAClick) {
  Fill();
  Present();

  m_control.SetSelectedItem(&m_control.Node("K2024May28"));

  EXPECT_TRUE(IsInView("K2024May28"));
  EXPECT_EQ(Selected(), "28");
  EXPECT_THAT(m_clicked, IsEmpty());
}

TEST_F(WindowsTreeTest, AClickOnANodeIsOneClick) {
  Fill();
  Present();

  Click("K2023");

  EXPECT_THAT(m_clicked, ElementsAre("K2023"));
  EXPECT_EQ(m_control.SelectedKey(), "K2023");
}

TEST_F(WindowsTreeTest, AClickOnTheSelectedNodeIsAClickAgain) {
  Fill();
  Present();

  Click("K2023");
  Click("K2023");

  EXPECT_THAT(m_clicked, ElementsAre("K2023", "K2023"));
}

TEST_F(WindowsTreeTest, OpeningANodeByItsButtonSelectsNothing) {
  Fill();
  Present();
  const RECT place = RectOf("K2023");

  MouseClick(Tree(), {place.left - 27, (place.top + place.bottom) / 2});

  EXPECT_TRUE(IsOpen("K2023"));
  EXPECT_EQ(m_control.SelectedItem(), nullptr);
}

TEST_F(WindowsTreeTest, TheArrowKeysMoveFromNodeToNode) {
  Fill();
  m_control.SetSelectedItem(&m_control.Node("K2023"));
  Present();

  Press(Tree(), VK_DOWN);

  EXPECT_THAT(m_clicked, ElementsAre("K2024"));
}

TEST_F(WindowsTreeTest, ATreeThatGetsTheKeyboardClicksNothing) {
  Fill();
  Present();
  SetFocus(m_window.Handle());

  m_control.SetFocus();

  EXPECT_EQ(GetFocus(), Tree());
  EXPECT_THAT(m_clicked, IsEmpty());
}

TEST_F(WindowsTreeTest, OpenNodesAreOpenAgainWhenTheTreeIsFilledAnew) {
  Fill();
  Present();
  Open("K2023");
  ASSERT_TRUE(IsOpen("K2023"));

  m_control.Clear();
  Fill();

  EXPECT_TRUE(IsOpen("K2023"));
  EXPECT_FALSE(IsOpen("K2024"));
}

TEST_F(WindowsTreeTest, ARootThatTheUserClosedStaysClosed) {
  Fill();
  Present();
  Ask(TVM_SELECTITEM, TVGN_CARET, ItemOf("K"));
  Press(Tree(), VK_LEFT);
  ASSERT_FALSE(IsOpen("K"));

  Fill();

  EXPECT_FALSE(IsOpen("K"));
}

TEST_F(WindowsTreeTest, ATreeThatIsFilledAgainStaysWhereTheUserScrolledTo) {
  Fill();
  m_control.SetSelectedItem(&m_control.Node("K2024May28"));
  Present();
  Ask(TVM_SELECTITEM, TVGN_FIRSTVISIBLE, ItemOf("K2024January"));
  const std::string top = TopText();

  Fill(29);
  m_control.SetSelectedItem(&m_control.Node("K2024May28"));

  EXPECT_EQ(TopText(), top);
  EXPECT_EQ(Selected(), "28");
}

TEST_F(WindowsTreeTest, TheRightButtonSelectsBeforeItIsReleased) {
  Fill();
  Present();
  std::vector<std::pair<int, std::string>> releases;
  m_control.MouseUp.Connect(
      [&](int button, double, double) { releases.emplace_back(button, m_control.SelectedKey()); });

  Click("K2024", VK_RBUTTON);

  EXPECT_THAT(releases, ElementsAre(Pair(2, "K2024")));
  EXPECT_EQ(Selected(), "2024");
}

TEST_F(WindowsTreeTest, TheMouseIsToldWhereItIsInTheTree) {
  Fill();
  Present();
  POINT told{};
  m_control.MouseUp.Connect([&](int, double x, double y) {
    told = {ToPixels(x, m_window.CurrentLook()->Dpi()), ToPixels(y, m_window.CurrentLook()->Dpi())};
  });

  Click("K2024", VK_RBUTTON);

  POINT expected = PlaceOf("K2024");
  MapWindowPoints(Tree(), m_window.Handle(), &expected, 1);
  EXPECT_EQ(told.x, expected.x - 20);
  EXPECT_EQ(told.y, expected.y - 30);
}

TEST_F(WindowsTreeTest, TheMenuKeysCountAsTheRightButtonOnTheSelectedNode) {
  Fill();
  m_control.SetSelectedItem(&m_control.Node("K2024"));
  Present();
  std::vector<int> buttons;
  m_control.MouseUp.Connect([&](int button, double, double) { buttons.push_back(button); });

  SendMessageW(Tree(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Tree()), -1);
  HoldKey(VK_MENU, true);
  SendMessageW(Tree(), WM_SYSKEYDOWN, VK_F10, 0x20000001);
  SendMessageW(Tree(), WM_SYSKEYUP, VK_F10, static_cast<LPARAM>(0xE0000001));
  HoldKey(VK_MENU, false);

  EXPECT_THAT(buttons, ElementsAre(2, 2));
}

TEST_F(WindowsTreeTest, NodesThatAreBeingExchangedAreNotAskedFor) {
  Fill();
  Present();
  const controls::UpdateScope update(m_control);
  m_control.Clear();

  InvalidateRect(Tree(), nullptr, TRUE);
  UpdateWindow(Tree());
  Press(Tree(), VK_DOWN);

  EXPECT_THAT(m_clicked, IsEmpty());
}

TEST_F(WindowsTreeTest, ThePresenterMayGoBeforeItsControl) {
  Fill();
  Present();

  m_presenter.reset();
  Fill(3);

  EXPECT_EQ(m_control.Count(), 19U);
}

TEST_F(WindowsTreeTest, ADayIsSpokenInWords) {
  using namespace std::chrono_literals;
  Fill();
  m_control.Node("K2024May1").day = std::chrono::local_days{2024y / 5 / 1};

  EXPECT_THAT(NodeWords(&m_control.Node("K2024May1")), ::testing::HasSubstr("2024"));
  EXPECT_EQ(NodeWords(&m_control.Node("K2024May")), "May 2024");
  EXPECT_EQ(NodeWords(&m_control.Node("K")), "");
  EXPECT_EQ(DayWords(std::chrono::local_days{500y / 5 / 1}), "500-5-1");
}

}  // namespace
}  // namespace dayvane::widgets
