// SPDX-License-Identifier: MIT
#pragma once

#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>
#include <vector>

#include "linux/widgets/CalendarPresenter.h"

namespace dayvane::widgets {

using controls::Calendar;

inline Calendar::Day Day(int year, unsigned month, unsigned day) {
  return std::chrono::local_days{std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(day)};
}

/// A calendar whose control stands on Wednesday, 20 May 2026, in a window of its own.
class CalendarTest : public ::testing::Test {
 protected:
  CalendarTest() {
    m_control.SetCurrentDate(Day(2026, 5, 20));
    m_control.DateChange.Connect([this](Calendar::Day, Calendar::Day to) { m_changes.push_back(to); });
  }

  /// A calendar that is shown, on a day long past today's, so that no ring is drawn.
  void Present(Qt::DayOfWeek firstDayOfWeek = Qt::Monday) {
    m_presenter.emplace(m_control, firstDayOfWeek, nullptr, [this] { return m_today; });
    m_presenter->resize(350, 250);
    m_presenter->show();
    (void)QTest::qWaitForWindowActive(&*m_presenter);
    Days().setFocus();
    m_changes.clear();
  }

  template <class Widget>
  Widget& Find(const char* spokenName) {
    for (Widget* widget : m_presenter->findChildren<Widget*>())
      if (widget->accessibleName() == QLatin1String(spokenName)) return *widget;
    throw std::runtime_error(spokenName);
  }

  QTableView& Days() { return Find<QTableView>("Days of the month"); }
  QSpinBox& Year() { return Find<QSpinBox>("Year"); }
  QString ShownDay() { return Days().currentIndex().data(Qt::AccessibleTextRole).toString(); }

  void Press(int key) { QTest::keyClick(&Days(), static_cast<Qt::Key>(key)); }
  void Click(const QModelIndex& cell) {
    QTest::mouseClick(Days().viewport(), Qt::LeftButton, {}, Days().visualRect(cell).center());
  }
  void ClickButton(const char* spokenName) { QTest::mouseClick(&Find<QToolButton>(spokenName), Qt::LeftButton); }

  void TurnWheel(int delta) {
    const QPointF centre = Days().viewport()->rect().center();
    QWheelEvent event(centre, Days().viewport()->mapToGlobal(centre), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(Days().viewport(), &event);
  }

  QRect Cell(int row, int column) {
    const QRect cell = Days().visualRect(Days().model()->index(row, column));
    return cell.translated(Days().viewport()->mapTo(&*m_presenter, QPoint()));
  }
  QImage Picture() { return m_presenter->grab().toImage(); }
  QColor At(QPoint point) { return Picture().pixelColor(point); }

  QDate m_today{1999, 12, 31};
  Calendar m_control;
  std::vector<Calendar::Day> m_changes{};
  std::optional<CalendarPresenter> m_presenter;
};

}  // namespace dayvane::widgets
