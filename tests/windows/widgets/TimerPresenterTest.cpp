// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <optional>

#include "controls/Deferred.h"
#include "tests/windows/widgets/TestWindow.h"
#include "windows/widgets/TimerPresenter.h"

namespace dayvane::widgets {
namespace {

class TimerPresenterTest : public ::testing::Test {
 protected:
  TimerPresenterTest() {
    m_timer.Tick.Connect([this] { ++m_ticks; });
    m_timer.SetInterval(1);
  }

  controls::Timer m_timer;
  TimerPresenter m_presenter{m_timer};
  int m_ticks = 0;
};

TEST_F(TimerPresenterTest, AnEnabledTimerTicks) {
  m_timer.SetEnabled(true);

  EXPECT_TRUE(WaitFor([&] { return m_ticks >= 2; }));
}

TEST_F(TimerPresenterTest, ATimerDisabledByItsTickTicksOnce) {
  m_timer.Tick.Connect([&] { m_timer.SetEnabled(false); });
  controls::Timer later;
  const TimerPresenter laterPresenter(later);
  bool laterTicked = false;
  later.Tick.Connect([&] { laterTicked = true; });

  m_timer.SetEnabled(true);
  later.SetInterval(50);
  later.SetEnabled(true);

  EXPECT_TRUE(WaitFor([&] { return laterTicked; }));
  EXPECT_EQ(m_ticks, 1);
}

TEST_F(TimerPresenterTest, NothingTicksInTheMiddleOfWork) {
  m_timer.SetEnabled(true);
  std::optional<controls::WorkScope> work(std::in_place);
  SendMessageW(m_presenter.Handle(), WM_TIMER, 1, 0);
  EXPECT_EQ(m_ticks, 0);

  work.reset();

  EXPECT_TRUE(WaitFor([&] { return m_ticks > 0; }));
}

TEST_F(TimerPresenterTest, WhatATickDoesIsInTheBackground) {
  bool wasInBackground = false;
  m_timer.Tick.Connect([&] { wasInBackground = controls::IsInBackground(); });
  m_timer.SetEnabled(true);

  SendMessageW(m_presenter.Handle(), WM_TIMER, 1, 0);

  EXPECT_TRUE(wasInBackground);
}

}  // namespace
}  // namespace dayvane::widgets
