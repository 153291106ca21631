// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QTimer>
#include <QVBoxLayout>

#include "controls/Calendar.h"
#include "controls/Deferred.h"
#include "linux/widgets/CalendarGrid.h"
#include "linux/widgets/CalendarHeader.h"
#include "linux/widgets/CalendarModel.h"
#include "linux/widgets/ControlLink.h"

namespace dayvane::widgets {

QDate Today();

/// Shows a calendar. Going to another month or year moves the current date there, so that the highlighted days are
/// always those of the month shown. Where the chosen day has no documents, a tip tells so, and which day is listed.
class CalendarPresenter : public QFrame {
 public:
  /// A calendar that has no date yet shows today's month.
  CalendarPresenter(controls::Calendar& control, Qt::DayOfWeek firstDayOfWeek, QWidget* parent = nullptr,
                    const std::function<QDate()>& today = Today);

 private:
  QDate ShownDate() const;
  QString Explanation() const;
  void Show();
  void ShowExplanation();
  void WaitForMidnight();

  // What the user wants.
  void ChangeMonths(int months);
  void Move(QDate date);
  void SetDate(QDate date);

  controls::Calendar& m_control;
  std::function<QDate()> m_today;
  CalendarModel m_model;
  DayDelegate m_days;
  CalendarHeader m_header;
  CalendarGrid m_grid;
  QVBoxLayout m_layout{this};
  QTimer m_midnight;
  controls::Deferred m_deferred;
  ControlLink m_link;
};

}  // namespace dayvane::widgets
