// SPDX-License-Identifier: MIT
#include "linux/widgets/CalendarPresenter.h"

#include <QEvent>
#include <QLocale>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTextCharFormat>
#include <QTimer>
#include <array>
#include <utility>

#include "linux/forms/Appearance.h"

namespace dayvane::widgets {

namespace {

using Day = controls::Calendar::Day;

const QDate kDayZero(1970, 1, 1);
constexpr int kBarHeight = 3;
constexpr const char* kDaysPart = "qt_calendar_calendarview";  ///< Qt's own name (qcalendarwidget.cpp)

// The style's own red can hardly be read on a dark background.
constexpr QColor kWeekendOnLight(0xb0, 0x10, 0x20);
constexpr QColor kWeekendOnDark(0xff, 0x9a, 0x8f);

QDate ToQDate(Day day) {
  return kDayZero.addDays(day.time_since_epoch().count());
}

Day ToDay(QDate date) {
  return Day{std::chrono::days{kDayZero.daysTo(date)}};
}

}  // namespace

CalendarPresenter::CalendarPresenter(controls::Calendar& control, Qt::DayOfWeek firstDayOfWeek, QWidget* parent)
    : QCalendarWidget(parent), m_control(control), m_link(control, *this, [this] { Show(); }) {
  setFirstDayOfWeek(firstDayOfWeek);
  setDateRange(ToQDate(controls::Calendar::kFirstDay), ToQDate(controls::Calendar::kLastDay));
  setVerticalHeaderFormat(NoVerticalHeader);
  connect(this, &QCalendarWidget::selectionChanged, this, [this] { SelectionMoved(); });
  for (const auto chosen : {&QCalendarWidget::clicked, &QCalendarWidget::activated})
    connect(this, chosen, this, [this](QDate date) { ChooseAgain(date); });
  connect(this, &QCalendarWidget::currentPageChanged, this, [this](int year, int month) { ShowMonth(year, month); });
  NameParts();
  ShowWeekend();
  m_link.Show();
}

void CalendarPresenter::NameParts() {
  // Qt's own names of the parts (qcalendarwidget.cpp); it leaves some without words for screen readers.
  static constexpr std::array<std::pair<const char*, const char*>, 3> kNames{
      {{kDaysPart, "Days of the month"},
       {"qt_calendar_prevmonth", "Previous month"},
       {"qt_calendar_nextmonth", "Next month"}}};
  for (const auto& [part, words] : kNames)
    if (auto* widget = findChild<QWidget*>(QLatin1String(part))) widget->setAccessibleName(QLatin1String(words));
}

bool CalendarPresenter::IsHighlighted(QDate date) const {
  const QDate current = ToQDate(m_control.CurrentDate());
  return date.year() == current.year() && date.month() == current.month() && m_control.Highlight(date.day());
}

bool CalendarPresenter::IsListed(QDate date) const {
  const auto listed = m_control.ListedDay();
  return listed && ToQDate(*listed) == date;
}

void CalendarPresenter::PaintFrame(QPainter& painter, const QRect& cell, QDate date) const {
  constexpr int kThickness = 2;
  painter.save();
  painter.fillRect(cell, palette().color(QPalette::Base));
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(cell, Qt::AlignCenter, QString::number(date.day()));
  painter.setPen(QPen(palette().color(QPalette::Highlight), kThickness));
  painter.drawRect(cell.adjusted(1, 1, -kThickness, -kThickness));
  painter.restore();
}

void CalendarPresenter::PaintFilled(QPainter& painter, const QRect& cell, QDate date) const {
  painter.save();
  painter.fillRect(cell, palette().color(QPalette::Highlight));
  painter.setPen(palette().color(QPalette::HighlightedText));
  QFont bold = font();
  bold.setBold(IsHighlighted(date));
  painter.setFont(bold);
  painter.drawText(cell, Qt::AlignCenter, QString::number(date.day()));
  painter.restore();
}

void CalendarPresenter::paintCell(QPainter* painter, const QRect& cell, QDate date) const {
  if (IsListed(date) && date != selectedDate())
    PaintFilled(*painter, cell, date);
  else if (date == selectedDate() && !IsListed(date))
    PaintFrame(*painter, cell, date);
  else
    QCalendarWidget::paintCell(painter, cell, date);
  if (!IsHighlighted(date)) return;
  const QColor colour = palette().color(IsListed(date) ? QPalette::HighlightedText : QPalette::Highlight);
  const int width = cell.width() / 2;
  painter->fillRect(cell.center().x() - width / 2, cell.bottom() - kBarHeight, width, kBarHeight, colour);
}

void CalendarPresenter::changeEvent(QEvent* event) {
  QCalendarWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ShowWeekend();
}

void CalendarPresenter::Show() {
  const QScopedValueRollback showing(m_showing, true);
  const Day day = m_control.CurrentDate();
  if (day != Day{}) setSelectedDate(ToQDate(day));
  ShowHighlights();
  ShowExplanation();
}

QString CalendarPresenter::Explanation() const {
  const QDate chosen = selectedDate();
  if (IsListed(chosen)) return {};
  const auto words = [](QDate date) { return QLocale().toString(date, QLocale::LongFormat); };
  const auto listed = m_control.ListedDay();
  QString list =
      listed ? QStringLiteral("The list is of %1.").arg(words(ToQDate(*listed))) : QStringLiteral("No day is listed.");
  if (IsHighlighted(chosen)) return list;
  return QStringLiteral("No documents on %1. %2").arg(words(chosen), list);
}

void CalendarPresenter::ShowExplanation() {
  const QString text = Explanation();
  setToolTip(text);
  // Where the keyboard is, a screen reader reads.
  if (auto* days = findChild<QWidget*>(QLatin1String(kDaysPart))) days->setAccessibleDescription(text);
}

void CalendarPresenter::ShowHighlights() {
  QTextCharFormat bold;
  bold.setFontWeight(QFont::Bold);
  setDateTextFormat({}, {});
  const QDate current = ToQDate(m_control.CurrentDate());
  for (int day = 1; day <= current.daysInMonth(); ++day)
    if (m_control.Highlight(day)) setDateTextFormat({current.year(), current.month(), day}, bold);
  updateCells();
}

void CalendarPresenter::ShowWeekend() {
  QTextCharFormat weekend;
  weekend.setForeground(IsDark(palette().color(QPalette::Base), palette().color(QPalette::Text)) ? kWeekendOnDark
                                                                                                 : kWeekendOnLight);
  for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) setWeekdayTextFormat(day, weekend);
}

void CalendarPresenter::ShowMonth(int year, int month) {
  const QDate first(year, month, 1);
  Choose({year, month, std::min(selectedDate().day(), first.daysInMonth())});
}

void CalendarPresenter::SelectionMoved() {
  if (m_showing) return;
  // The click that moved the selection is reported right after it.
  m_selectionMoved = true;
  QTimer::singleShot(0, this, [this] { m_selectionMoved = false; });
  Choose(selectedDate());
}

void CalendarPresenter::ChooseAgain(QDate date) {
  // Another day may have been listed since, by the tree.
  if (!m_showing && !m_selectionMoved) SetDate(date);
}

void CalendarPresenter::Choose(QDate date) {
  if (!m_showing && ToDay(date) != m_control.CurrentDate()) SetDate(date);
}

void CalendarPresenter::SetDate(QDate date) {
  m_deferred.AfterWork([this, date] {
    m_control.SetCurrentDate(ToDay(date));
    Show();  // the program may have refused
  });
}

}  // namespace dayvane::widgets
