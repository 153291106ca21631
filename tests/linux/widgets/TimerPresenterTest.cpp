// SPDX-License-Identifier: MIT
#include <QTest>
#include <gtest/gtest.h>
#include <optional>

#include "controls/Deferred.h"
#include "linux/widgets/TimerPresenter.h"

namespace dayvane::widgets {
namespace {

TEST(TimerPresenter, AnEnabledTimerTicks) {
  controls::Timer timer;
  const TimerPresenter presenter(timer);
  int ticks = 0;
  timer.Tick.Connect([&] { ++ticks; });

  timer.SetInterval(1);
  timer.SetEnabled(true);

  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 2; }));
}

TEST(TimerPresenter, ATimerDisabledByItsTickTicksOnce) {
  controls::Timer timer;
  const TimerPresenter presenter(timer);
  int ticks = 0;
  timer.Tick.Connect([&] {
    ++ticks;
    timer.SetEnabled(false);
  });
  controls::Timer later;
  const TimerPresenter laterPresenter(later);
  bool laterTicked = false;
  later.Tick.Connect([&] { laterTicked = true; });

  timer.SetInterval(1);
  timer.SetEnabled(true);
  later.SetInterval(20);
  later.SetEnabled(true);

  EXPECT_TRUE(QTest::qWaitFor([&] { return laterTicked; }));
  EXPECT_EQ(ticks, 1);
}

TEST(TimerPresenter, NothingTicksInTheMiddleOfWork) {
  controls::Timer timer;
  const TimerPresenter presenter(timer);
  int ticks = 0;
  timer.Tick.Connect([&] { ++ticks; });
  timer.SetInterval(1);
  timer.SetEnabled(true);
  std::optional<controls::WorkScope> work(std::in_place);
  QTimer later;
  later.setSingleShot(true);
  later.start(20);

  ASSERT_TRUE(QTest::qWaitFor([&] { return !later.isActive(); }));
  EXPECT_EQ(ticks, 0);
  work.reset();
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 0; }));
}

}  // namespace
}  // namespace dayvane::widgets
