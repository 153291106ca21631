// SPDX-License-Identifier: MIT
#include <QAbstractItemModelTester>
#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <gmock/gmock.h>

#include "linux/widgets/Lengths.h"
#include "linux/widgets/TreePresenter.h"

namespace dayvane::widgets {
namespace {

using controls::TreeNode;
using ::testing::ElementsAre;
using ::testing::Pair;

/// A tree of years, months and days in a window of its own.
class TreePresenterTest : public ::testing::Test {
 protected:
  TreePresenterTest() { m_pane.resize(300, 200); }

  /// Two years of four months of 28 days.
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

  TreePresenter& Present() {
    m_presenter = std::make_unique<TreePresenter>(m_control, m_icons, &m_pane);
    m_presenter->resize(m_pane.size());
    m_pane.show();
    m_presenter->setFocus();
    (void)QTest::qWaitForWindowActive(&m_pane);
    return *m_presenter;
  }

  QModelIndex IndexOf(const std::string& key) {
    const TreeNode& node = m_control.Node(key);
    const QModelIndex parent = node.parent == nullptr ? QModelIndex() : IndexOf(node.parent->key);
    return m_presenter->model()->index(static_cast<int>(node.row), 0, parent);
  }

  bool IsOpen(const std::string& key) { return m_presenter->isExpanded(IndexOf(key)); }
  QPoint PlaceOf(const std::string& key) { return m_presenter->visualRect(IndexOf(key)).center(); }
  bool IsInView(const std::string& key) { return m_presenter->viewport()->rect().contains(PlaceOf(key)); }

  void MouseClick(const std::string& key, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(m_presenter->viewport(), button, {}, PlaceOf(key));
  }

  controls::TreeView m_control;
  Icons m_icons;
  QWidget m_pane;
  std::unique_ptr<TreePresenter> m_presenter;
};

TEST_F(TreePresenterTest, ANameIsShownAsAPersonReadsIt) {
  m_control.AddRoot("K", "\xEF\x80\xA2My\xEF\x80\xA2 days", 1);
  Present();
  EXPECT_EQ(IndexOf("K").data().toString(), "\"My\" days");
}

TEST_F(TreePresenterTest, TheModelKeepsItsPromisesWhileTheTreeChanges) {
  const QAbstractItemModelTester tester(Present().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);

  Fill();
  Fill(3);
  m_control.Clear();

  EXPECT_EQ(m_presenter->model()->rowCount(), 0);
}

TEST_F(TreePresenterTest, NodesShowTheirTextsBelowTheirParents) {
  Fill();
  Present();

  EXPECT_EQ(IndexOf("K2024May").data().toString(), "May");
  EXPECT_EQ(IndexOf("K2024May").parent().data().toString(), "2024");
}

TEST_F(TreePresenterTest, ATreeOpensWithItsRootOpen) {
  Fill();
  Present();

  EXPECT_TRUE(IsOpen("K"));
  EXPECT_FALSE(IsOpen("K2024"));
}

TEST_F(TreePresenterTest, TheProgramsSelectionIsOpenedUpAndInViewWithoutAClick) {
  Fill();
  Present();
  int clicks = 0;
  m_control.NodeClick.Connect([&](TreeNode&) { ++clicks; });

  m_control.SetSelectedItem(&m_control.Node("K2024May28"));

  EXPECT_TRUE(IsInView("K2024May28"));
  EXPECT_EQ(m_presenter->currentIndex(), IndexOf("K2024May28"));
  EXPECT_EQ(clicks, 0);
}

TEST_F(TreePresenterTest, ASelectionMadeBeforeTheWindowOpensIsInView) {
  Fill();
  m_control.SetSelectedItem(&m_control.Node("K2024May28"));

  Present();

  EXPECT_TRUE(IsInView("K2024May28"));
}

TEST_F(TreePresenterTest, AClickOnANodeIsOneClick) {
  Fill();
  Present();
  std::vector<std::string> clicked;
  m_control.NodeClick.Connect([&](TreeNode& node) { clicked.push_back(node.key); });

  MouseClick("K2023");

  EXPECT_THAT(clicked, ElementsAre("K2023"));
}

TEST_F(TreePresenterTest, OpeningANodeByItsArrowSelectsNothing) {
  Fill();
  Present();

  QTest::mouseClick(m_presenter->viewport(), Qt::LeftButton, {},
                    {m_presenter->visualRect(IndexOf("K2023")).left() - 8, PlaceOf("K2023").y()});

  EXPECT_TRUE(IsOpen("K2023"));
  EXPECT_EQ(m_control.SelectedItem(), nullptr);
}

TEST_F(TreePresenterTest, TheArrowKeysMoveFromNodeToNode) {
  Fill();
  m_control.SetSelectedItem(&m_control.Node("K2023"));
  Present();
  std::vector<std::string> clicked;
  m_control.NodeClick.Connect([&](TreeNode& node) { clicked.push_back(node.key); });

  QTest::keyClick(m_presenter.get(), Qt::Key_Down);

  EXPECT_THAT(clicked, ElementsAre("K2024"));
}

TEST_F(TreePresenterTest, OpenNodesAreOpenAgainWhenTheTreeIsFilledAnew) {
  Fill();
  Present();
  m_presenter->expand(IndexOf("K2023"));

  m_control.Clear();
  Fill();

  EXPECT_TRUE(IsOpen("K2023"));
  EXPECT_FALSE(IsOpen("K2024"));
}

TEST_F(TreePresenterTest, ARootThatTheUserClosedStaysClosed) {
  Fill();
  Present();
  m_presenter->collapse(IndexOf("K"));

  Fill();

  EXPECT_FALSE(IsOpen("K"));
}

TEST_F(TreePresenterTest, ATreeThatIsFilledAgainStaysWhereTheUserScrolledTo) {
  Fill();
  Present().expandAll();
  MouseClick("K2023");
  m_presenter->verticalScrollBar()->setValue(40);

  Fill(29);
  m_control.SetSelectedItem(&m_control.Node("K2023"));

  EXPECT_EQ(m_presenter->verticalScrollBar()->value(), 40);
  EXPECT_EQ(m_presenter->currentIndex(), IndexOf("K2023"));
}

TEST_F(TreePresenterTest, TheRightButtonSelectsBeforeItIsReleased) {
  Fill();
  Present();
  std::vector<std::pair<int, std::string>> releases;
  m_control.MouseUp.Connect(
      [&](int button, double, double) { releases.emplace_back(button, m_control.SelectedItem()->key); });

  MouseClick("K2024", Qt::RightButton);

  EXPECT_THAT(releases, ElementsAre(Pair(2, "K2024")));
}

TEST_F(TreePresenterTest, TheMouseIsToldWhereItIsInTheTree) {
  Fill();
  Present().move(20, 60);
  QPoint told;
  m_control.MouseUp.Connect([&](int, double x, double y) {
    told = {ToPixels(x, *m_presenter), ToPixels(y, *m_presenter)};
  });

  MouseClick("K2024", Qt::RightButton);

  EXPECT_EQ(told, m_presenter->viewport()->mapTo(m_presenter.get(), PlaceOf("K2024")));
}

TEST_F(TreePresenterTest, TheMenuKeyCountsAsTheRightButtonOnTheSelectedNode) {
  Fill();
  m_control.SetSelectedItem(&m_control.Node("K2024"));
  Present();
  std::vector<int> buttons;
  m_control.MouseUp.Connect([&](int button, double, double) { buttons.push_back(button); });
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});

  QApplication::sendEvent(m_presenter->viewport(), &menuKey);

  EXPECT_THAT(buttons, ElementsAre(2));
}

TEST_F(TreePresenterTest, ThePresenterMayGoBeforeItsControl) {
  Fill();
  Present();

  m_presenter.reset();
  Fill(3);

  EXPECT_EQ(m_control.Count(), 19u);
}

}  // namespace
}  // namespace dayvane::widgets
