// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QDate>

#include "controls/Calendar.h"

namespace dayvane::widgets {

controls::Calendar::Day ToDay(QDate date);
QDate ToQDate(controls::Calendar::Day day);

/// Six weeks of days with the month shown among them, as Qt's table reads them. A screen reader is told each day in
/// words, with the number of its documents.
class CalendarModel : public QAbstractTableModel {
 public:
  CalendarModel(controls::Calendar& control, Qt::DayOfWeek firstDayOfWeek)
      : m_control(control), m_firstDayOfWeek(firstDayOfWeek) {}

  void ShowMonthOf(QDate date);
  bool IsInMonth(QDate date) const;
  QDate DateAt(const QModelIndex& index) const { return m_first.addDays(index.row() * kDaysOfWeek + index.column()); }
  QModelIndex IndexOf(QDate date) const;

  bool IsHighlighted(QDate date) const;
  bool IsListed(QDate date) const { return m_control.ListedDay() == ToDay(date); }

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : kWeeks; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : kDaysOfWeek; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  static constexpr int kDaysOfWeek = 7;
  static constexpr int kWeeks = 6;

  QString WordsOf(QDate date) const;

  controls::Calendar& m_control;
  Qt::DayOfWeek m_firstDayOfWeek;
  QDate m_month;  ///< its first day
  QDate m_first;  ///< the day in the upper left corner
};

}  // namespace dayvane::widgets
