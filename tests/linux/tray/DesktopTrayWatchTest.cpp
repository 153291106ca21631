// SPDX-License-Identifier: MIT
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "linux/tray/DesktopTrayWatch.h"

namespace dayvane::widgets {
namespace {

TEST(DesktopTrayWatch, ThereIsNoTrayWhereThereIsNoScreen) {
  constexpr int kAfterTheFirstLook = 500;  // milliseconds; timers come in their order, however late
  const DesktopTrayWatch watch;
  bool hasLooked = false;
  QTimer::singleShot(kAfterTheFirstLook, qApp, [&] { hasLooked = true; });

  ASSERT_TRUE(QTest::qWaitFor([&] { return hasLooked; }));

  EXPECT_FALSE(watch.IsThere());
}

}  // namespace
}  // namespace dayvane::widgets
