// SPDX-License-Identifier: MIT
#include "linux/widgets/CalendarHeader.h"

#include <QLocale>
#include <QPainter>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <utility>

#include "linux/widgets/CalendarModel.h"

namespace dayvane::widgets {

namespace {

// Logical pixels.
constexpr int kChevron = 5;  ///< from its point to its ends
constexpr qreal kChevronPen = 2;
constexpr int kHeaderMargin = 2;

constexpr int kMonthsOfYear = 12;

}  // namespace

void ChevronButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionToolButton option;
  initStyleOption(&option);
  painter.drawComplexControl(QStyle::CC_ToolButton, option);
  const qreal towards = (m_direction == Qt::LeftArrow) != isRightToLeft() ? -kChevron / 2.0 : kChevron / 2.0;
  const QPointF centre = QRectF(rect()).center();
  const QPointF ends[] = {centre + QPointF(-towards, -kChevron), centre + QPointF(towards, 0),
                          centre + QPointF(-towards, kChevron)};
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::ButtonText), kChevronPen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(ends, 3);
}

CalendarHeader::CalendarHeader(std::function<void(int)> changeMonths, std::function<void(int, int)> choose)
    : m_changeMonths(std::move(changeMonths)), m_choose(std::move(choose)) {
  m_previous.setAccessibleName(QStringLiteral("Previous month"));
  m_next.setAccessibleName(QStringLiteral("Next month"));
  m_yearField.setAccessibleName(QStringLiteral("Year"));
  m_yearField.setRange(ToQDate(controls::Calendar::kFirstDay).year(), ToQDate(controls::Calendar::kLastDay).year());
  m_yearField.setButtonSymbols(QAbstractSpinBox::NoButtons);
  m_yearField.setFrame(false);
  m_yearField.setKeyboardTracking(false);  // half a year typed is none
  m_monthButton.setAutoRaise(true);
  MakeBold();
  BuildMonths();
  m_layout.setContentsMargins(kHeaderMargin, kHeaderMargin, kHeaderMargin, kHeaderMargin);
  m_layout.setSpacing(0);
  m_layout.addWidget(&m_previous);
  m_layout.addStretch();
  m_layout.addWidget(&m_monthButton);
  m_layout.addWidget(&m_yearField);
  m_layout.addStretch();
  m_layout.addWidget(&m_next);
  connect(&m_previous, &QToolButton::clicked, this, [this] { m_changeMonths(-1); });
  connect(&m_next, &QToolButton::clicked, this, [this] { m_changeMonths(1); });
  connect(&m_yearField, &QSpinBox::valueChanged, this, [this](int year) { m_choose(year, m_month); });
}

void CalendarHeader::MakeBold() {
  QFont bold = font();
  bold.setBold(true);
  m_monthButton.setFont(bold);
  m_yearField.setFont(bold);
  QPalette plain = palette();
  plain.setColor(QPalette::Base, Qt::transparent);
  m_yearField.setPalette(plain);
}

void CalendarHeader::BuildMonths() {
  for (int month = 1; month <= kMonthsOfYear; ++month)
    connect(m_months.addAction(QLocale().standaloneMonthName(month)), &QAction::triggered, this,
            [this, month] { m_choose(m_yearField.value(), month); });
  connect(&m_monthButton, &QToolButton::clicked, this,
          [this] { m_months.popup(m_monthButton.mapToGlobal(m_monthButton.rect().bottomLeft())); });
}

void CalendarHeader::Show(int year, int month) {
  const QSignalBlocker quiet(m_yearField);
  m_month = month;
  m_monthButton.setText(QLocale().standaloneMonthName(month));
  m_monthButton.setAccessibleName(m_monthButton.text());
  m_yearField.setValue(year);
}

}  // namespace dayvane::widgets
