// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QTableView>
#include <functional>

#include "linux/widgets/CalendarModel.h"

namespace dayvane::widgets {

/// Draws the days of a calendar. A highlighted day is bold and underlined by a bar: colour alone would not do. The day
/// that is listed is filled; a chosen day that is not listed has a frame; today has a ring.
class DayDelegate : public QStyledItemDelegate {
 public:
  DayDelegate(const CalendarModel& model, std::function<QDate()> today) : m_model(model), m_today(std::move(today)) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  QColor InkOf(const QPalette& palette, QDate date) const;

  const CalendarModel& m_model;
  std::function<QDate()> m_today;
};

/// The names of the weekdays, without the borders of a table's heading.
class WeekdayHeader : public QHeaderView {
 public:
  WeekdayHeader() : QHeaderView(Qt::Horizontal) {}

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int section) const override;
};

/// The days of a month as a table. The user's wish is told, and the current cell moves when the calendar shows it.
class CalendarGrid : public QTableView {
  Q_OBJECT

 public:
  struct Events {
    std::function<void(QDate)> choose;      ///< a click or Enter, also on the current day
    std::function<void(QDate)> move;        ///< by the keys
    std::function<void(int)> changeMonths;  ///< by this number
  };

  CalendarGrid(CalendarModel& model, DayDelegate& delegate, Events&& events);

  void SetCurrent(QDate date);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void focusInEvent(QFocusEvent* event) override;
  void initViewItemOption(QStyleOptionViewItem* option) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QDate CurrentDate() const { return m_model.DateAt(currentIndex()); }
  QDate MovedBy(int key) const;  ///< null for a key that does not move by days
  QSize CellSize() const;

  CalendarModel& m_model;
  WeekdayHeader m_weekdays;
  Events m_events;
  int m_wheel = 0;  ///< turned so far, in eighths of a degree
};

}  // namespace dayvane::widgets
