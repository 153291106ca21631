// SPDX-License-Identifier: MIT
#include <QTest>
#include <gtest/gtest.h>

#include "linux/widgets/StatusBarPresenter.h"

namespace dayvane::widgets {
namespace {

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
 public:
  explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
  int Count() const { return m_count; }

  bool eventFilter(QObject*, QEvent* event) override {
    m_count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }

 private:
  int m_count = 0;
};

TEST(StatusBarPresenter, ShowsTheTextAndSpeaksIt) {
  controls::StatusBar control;
  const StatusBarPresenter presenter(control);

  control.SetText("12 objects");

  EXPECT_EQ(presenter.Text(), "12 objects");
  EXPECT_EQ(presenter.accessibleName(), "12 objects");
}

TEST(StatusBarPresenter, ShowsAndSpeaksNamesAsAPersonReadsThem) {
  controls::StatusBar control;
  const StatusBarPresenter presenter(control);

  control.SetText("\xEF\x80\xA2Plan\xEF\x80\xA2");

  EXPECT_EQ(presenter.Text(), "\"Plan\"");
  EXPECT_EQ(presenter.accessibleName(), "\"Plan\"");
}

TEST(StatusBarPresenter, ARefreshPaintsBeforeAnyEventRuns) {
  controls::StatusBar control;
  StatusBarPresenter presenter(control);
  presenter.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&presenter));
  const PaintCounter paints(presenter);

  control.SetText("Please wait...");
  control.Refresh();

  EXPECT_EQ(paints.Count(), 1);
}

}  // namespace
}  // namespace dayvane::widgets
