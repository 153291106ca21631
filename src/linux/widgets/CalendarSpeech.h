// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>
#include <QTableView>
#include <vector>

namespace dayvane::widgets {

/// What a screen reader finds in a calendar's table: the names of the weekdays, then the days as a list, each spoken
/// alone. As a table, a whole week would be read at every step up or down.
class CalendarSpeech : public QAccessibleWidget {
 public:
  explicit CalendarSpeech(QTableView* grid);
  ~CalendarSpeech() override;
  Q_DISABLE_COPY_MOVE(CalendarSpeech)

  /// Lets screen readers find calendars so, from now on.
  static void Install();

  /// Says the current day, where the table has the keyboard.
  static void SayCurrent(QTableView& grid);

  int childCount() const override { return static_cast<int>(m_parts.size()); }
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;

 private:
  static int PartOf(const QModelIndex& day);
  QTableView& Grid() const { return *qobject_cast<QTableView*>(widget()); }

  std::vector<QAccessible::Id> m_parts;
};

}  // namespace dayvane::widgets
