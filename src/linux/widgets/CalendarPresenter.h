// SPDX-License-Identifier: MIT
#pragma once

#include <QCalendarWidget>

#include "controls/Calendar.h"
#include "controls/Deferred.h"
#include "linux/widgets/ControlLink.h"

namespace dayvane::widgets {

/// Shows a calendar. Going to another month or year moves the current date there, so that the highlighted days are
/// always those of the month shown. A highlighted day is bold and underlined by a bar: colour alone would not do. The
/// day that is listed is filled; a chosen day that is not, because it has no documents, has a frame, and a tip tells
/// so.
class CalendarPresenter : public QCalendarWidget {
 public:
  /// A calendar that has no date yet shows today's month.
  CalendarPresenter(controls::Calendar& control, Qt::DayOfWeek firstDayOfWeek, QWidget* parent = nullptr);

  bool IsHighlighted(QDate date) const;

 protected:
  void paintCell(QPainter* painter, const QRect& cell, QDate date) const override;
  void changeEvent(QEvent* event) override;

 private:
  bool IsListed(QDate date) const;
  QString Explanation() const;
  void PaintFrame(QPainter& painter, const QRect& cell, QDate date) const;
  void PaintFilled(QPainter& painter, const QRect& cell, QDate date) const;
  void NameParts();
  void Show();
  void ShowHighlights();
  void ShowExplanation();
  void ShowWeekend();
  void ShowMonth(int year, int month);
  void SelectionMoved();
  void Choose(QDate date);
  void ChooseAgain(QDate date);
  void SetDate(QDate date);

  controls::Calendar& m_control;
  bool m_selectionMoved = false;
  bool m_showing = false;  ///< what changes in the widget is not the user's doing
  controls::Deferred m_deferred;
  ControlLink m_link;
};

}  // namespace dayvane::widgets
