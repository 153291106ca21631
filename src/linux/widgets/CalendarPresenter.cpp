// SPDX-License-Identifier: MIT
#include "linux/widgets/CalendarPresenter.h"

#include <algorithm>

#include "linux/LinuxClock.h"
#include "linux/widgets/DayWords.h"

namespace dayvane::widgets {

namespace {

using controls::Calendar;

/// The day of a month as near to a wanted one as the month has.
QDate DayOfMonth(int year, int month, int day) {
  const QDate first(year, month, 1);
  return {year, month, std::min(day, first.daysInMonth())};
}

QDate WithinRange(QDate date) {
  return std::clamp(date, ToQDate(Calendar::kFirstDay), ToQDate(Calendar::kLastDay));
}

}  // namespace

QDate Today() {
  return ToQDate(std::chrono::floor<std::chrono::days>(LinuxClock().Now()));
}

CalendarPresenter::CalendarPresenter(Calendar& control, Qt::DayOfWeek firstDayOfWeek, QWidget* parent,
                                     const std::function<QDate()>& today)
    : QFrame(parent),
      m_control(control),
      m_today(today),
      m_model(control, firstDayOfWeek),
      m_days(m_model, today),
      m_header([this](int months) { ChangeMonths(months); },
               [this](int year, int month) { Move(DayOfMonth(year, month, ShownDate().day())); }),
      m_grid(m_model, m_days,
             {[this](QDate date) { SetDate(date); }, [this](QDate date) { Move(date); },
              [this](int months) { ChangeMonths(months); }}),
      m_link(control, *this, [this] { Show(); }) {
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  setFocusProxy(&m_grid);
  m_grid.setAccessibleName(QStringLiteral("Days of the month"));
  m_layout.setContentsMargins(0, 0, 0, 0);
  m_layout.setSpacing(0);
  m_layout.addWidget(&m_header);
  m_layout.addWidget(&m_grid);
  m_midnight.setSingleShot(true);
  connect(&m_midnight, &QTimer::timeout, this, [this] { WaitForMidnight(); });
  WaitForMidnight();
  m_link.Show();
}

void CalendarPresenter::WaitForMidnight() {
  // Not all at once: a computer that slept, or whose clock was set, would be told late.
  constexpr std::chrono::minutes kLookAgain{30};
  const auto now = LinuxClock().Now();
  const std::chrono::seconds left = std::chrono::ceil<std::chrono::days>(now + std::chrono::seconds(1)) - now;
  m_midnight.start(std::min<std::chrono::milliseconds>(left, kLookAgain));
  m_grid.viewport()->update();
}

QDate CalendarPresenter::ShownDate() const {
  return m_control.CurrentDate() == Calendar::Day{} ? m_today() : ToQDate(m_control.CurrentDate());
}

void CalendarPresenter::Show() {
  const QDate date = ShownDate();
  m_header.Show(date.year(), date.month());
  m_grid.SetCurrent(date);
  ShowExplanation();
}

QString CalendarPresenter::Explanation() const {
  const QDate chosen = ShownDate();
  if (m_model.IsListed(chosen)) return {};
  const auto listed = m_control.ListedDay();
  QString list =
      listed ? QStringLiteral("The list is of %1.").arg(DayWords(*listed)) : QStringLiteral("No day is listed.");
  if (m_model.IsHighlighted(chosen)) return list;
  return QStringLiteral("No documents on %1. %2").arg(DayWords(ToDay(chosen)), list);
}

void CalendarPresenter::ShowExplanation() {
  const QString text = Explanation();
  setToolTip(text);
  m_grid.setAccessibleDescription(text);  // where the keyboard is, a screen reader reads
}

void CalendarPresenter::ChangeMonths(int months) {
  const QDate shown = ShownDate();
  const QDate moved = QDate(shown.year(), shown.month(), 1).addMonths(months);
  Move(DayOfMonth(moved.year(), moved.month(), shown.day()));
}

void CalendarPresenter::Move(QDate date) {
  if (WithinRange(date) != ShownDate()) SetDate(date);
}

void CalendarPresenter::SetDate(QDate date) {
  m_deferred.AfterWork([this, date] {
    m_control.SetCurrentDate(ToDay(WithinRange(date)));
    Show();  // the program may have refused
  });
}

}  // namespace dayvane::widgets
