// SPDX-License-Identifier: MIT
#pragma once

#include <QHBoxLayout>
#include <QMenu>
#include <QSpinBox>
#include <QToolButton>
#include <functional>

namespace dayvane::widgets {

/// A button with an arrowhead in the palette's own colour, which every theme shows.
class ChevronButton : public QToolButton {
 public:
  explicit ChevronButton(Qt::ArrowType direction) : m_direction(direction) { setAutoRaise(true); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Qt::ArrowType m_direction;
};

/// Month and year above a calendar's days, and the way to others.
class CalendarHeader : public QWidget {
 public:
  /// `changeMonths` is told a number of months to go, `choose` a month and year.
  CalendarHeader(std::function<void(int)> changeMonths, std::function<void(int year, int month)> choose);

  void Show(int year, int month);

 private:
  void BuildMonths();
  void MakeBold();

  std::function<void(int)> m_changeMonths;
  std::function<void(int, int)> m_choose;
  int m_month = 1;
  QMenu m_months{this};
  ChevronButton m_previous{Qt::LeftArrow};
  QToolButton m_monthButton;
  QSpinBox m_yearField;
  ChevronButton m_next{Qt::RightArrow};
  QHBoxLayout m_layout{this};
};

}  // namespace dayvane::widgets
