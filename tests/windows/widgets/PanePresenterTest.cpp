// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/windows/widgets/TestWindow.h"
#include "windows/forms/PaneSplitter.h"
#include "windows/widgets/ButtonPresenter.h"
#include "windows/widgets/Lengths.h"
#include "windows/widgets/PanePresenter.h"

namespace dayvane::widgets {
namespace {

class WindowsPaneTest : public ::testing::Test {
 protected:
  WindowsPaneTest() {
    MoveWindow(m_pane.Handle(), 0, 0, 200, 100, FALSE);
    m_pane.Add(m_button, m_child.Handle());
  }

  RECT PlaceOfChild() const {
    RECT place{};
    GetWindowRect(m_child.Handle(), &place);
    MapWindowPoints(nullptr, m_pane.Handle(), reinterpret_cast<POINT*>(&place), 2);
    return place;
  }

  TestWindow m_window;
  controls::PictureBox m_control;
  controls::Button m_button;
  PanePresenter m_pane{m_control, m_window.Handle(), m_window.CurrentLook()};
  ButtonPresenter m_child{m_button, m_pane.Handle(), m_window.CurrentLook()};
};

TEST_F(WindowsPaneTest, AChildLiesWhereItsControlSays) {
  MoveControl(m_button, {10, 20, 60, 50}, m_window.CurrentLook()->Dpi());

  EXPECT_EQ(PlaceOfChild().left, 10);
  EXPECT_EQ(PlaceOfChild().bottom, 50);
}

TEST_F(WindowsPaneTest, AChildEndsWhereItsPaneEndsAndGrowsWithIt) {
  MoveControl(m_button, {10, 20, 1000, 1000}, m_window.CurrentLook()->Dpi());
  EXPECT_EQ(PlaceOfChild().right, 200);

  MoveWindow(m_pane.Handle(), 0, 0, 300, 150, FALSE);

  EXPECT_EQ(PlaceOfChild().right, 300);
  EXPECT_EQ(PlaceOfChild().bottom, 150);
}

TEST_F(WindowsPaneTest, APaneIsShownAndHiddenAsItsControl) {
  m_control.SetVisible(false);
  EXPECT_FALSE(IsWindowVisible(m_child.Handle()));

  m_control.SetVisible(true);

  EXPECT_TRUE(IsWindowVisible(m_child.Handle()));
}

TEST_F(WindowsPaneTest, WhatAChildTellsComesBackToIt) {
  int clicks = 0;
  m_button.Click.Connect([&] { ++clicks; });

  SendMessageW(m_pane.Handle(), WM_COMMAND, MAKEWPARAM(0, BN_CLICKED), reinterpret_cast<LPARAM>(m_child.Handle()));

  EXPECT_EQ(clicks, 1);
}

TEST_F(WindowsPaneTest, ASplitterTellsWhereItIsDragged) {
  int wanted = 0;
  const PaneSplitter splitter(m_window.Handle(), [&](int left) { wanted = left; });
  MoveWindow(splitter.Handle(), 100, 0, 7, 200, FALSE);

  SendMessageW(splitter.Handle(), WM_MOUSEMOVE, 0, MAKELPARAM(50, 10));
  EXPECT_EQ(wanted, 0);
  SendMessageW(splitter.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 10));
  SendMessageW(splitter.Handle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(53, 10));
  SendMessageW(splitter.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(53, 10));

  EXPECT_EQ(wanted, 150);
}

}  // namespace
}  // namespace dayvane::widgets
