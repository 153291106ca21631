// SPDX-License-Identifier: MIT
#include "linux/widgets/CalendarModel.h"

#include <QLocale>

#include "linux/widgets/DayWords.h"

namespace dayvane::widgets {

namespace {

using controls::Calendar;

const QDate kDayZero(1970, 1, 1);

}  // namespace

Calendar::Day ToDay(QDate date) {
  return Calendar::Day{std::chrono::days{kDayZero.daysTo(date)}};
}

QDate ToQDate(Calendar::Day day) {
  return kDayZero.addDays(day.time_since_epoch().count());
}

void CalendarModel::ShowMonthOf(QDate date) {
  const QDate month(date.year(), date.month(), 1);
  if (month == m_month) return;
  beginResetModel();
  m_month = month;
  m_first = month.addDays(-((month.dayOfWeek() - m_firstDayOfWeek + kDaysOfWeek) % kDaysOfWeek));
  endResetModel();
}

bool CalendarModel::IsInMonth(QDate date) const {
  return date.year() == m_month.year() && date.month() == m_month.month();
}

QModelIndex CalendarModel::IndexOf(QDate date) const {
  const auto days = static_cast<int>(m_first.daysTo(date));
  return days < 0 ? QModelIndex() : index(days / kDaysOfWeek, days % kDaysOfWeek);
}

bool CalendarModel::IsHighlighted(QDate date) const {
  const QDate current = ToQDate(m_control.CurrentDate());
  return date.year() == current.year() && date.month() == current.month() && m_control.Highlight(date.day());
}

QString CalendarModel::WordsOf(QDate date) const {
  const std::size_t documents = m_control.Documents(ToDay(date));
  const QString count = documents == 0   ? QStringLiteral("no documents")
                        : documents == 1 ? QStringLiteral("1 document")
                                         : QStringLiteral("%1 documents").arg(documents);
  return DayWords(ToDay(date)) + QStringLiteral(", ") + count;
}

QVariant CalendarModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  if (role == Qt::DisplayRole) return QLocale().toString(DateAt(index).day());
  if (role == Qt::AccessibleTextRole) return WordsOf(DateAt(index));
  return {};
}

QVariant CalendarModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kDaysOfWeek) return {};
  const int day = (m_firstDayOfWeek - 1 + section) % kDaysOfWeek + 1;
  if (role == Qt::DisplayRole) return QLocale().standaloneDayName(day, QLocale::ShortFormat);
  if (role == Qt::AccessibleTextRole) return QLocale().standaloneDayName(day, QLocale::LongFormat);
  return {};
}

Qt::ItemFlags CalendarModel::flags(const QModelIndex& index) const {
  const Calendar::Day day = ToDay(DateAt(index));
  const bool exists = day >= Calendar::kFirstDay && day <= Calendar::kLastDay;
  return exists ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

}  // namespace dayvane::widgets
