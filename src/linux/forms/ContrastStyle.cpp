// SPDX-License-Identifier: MIT
#include "linux/forms/ContrastStyle.h"

#include <QPainter>
#include <QPolygonF>
#include <QStyleOptionHeader>
#include <algorithm>

namespace dayvane::widgets {

namespace {

/// The way in which an arrow points, or none for what is not drawn as an arrow.
Qt::ArrowType ArrowOf(QStyle::PrimitiveElement element, const QStyleOption& option) {
  switch (element) {
    case QStyle::PE_IndicatorArrowUp:
      return Qt::UpArrow;
    case QStyle::PE_IndicatorArrowDown:
      return Qt::DownArrow;
    case QStyle::PE_IndicatorArrowLeft:
      return Qt::LeftArrow;
    case QStyle::PE_IndicatorArrowRight:
      return Qt::RightArrow;
    case QStyle::PE_IndicatorHeaderArrow:
      if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(&option))
        return header->sortIndicator == QStyleOptionHeader::SortUp ? Qt::UpArrow : Qt::DownArrow;
      return Qt::NoArrow;
    default:
      return Qt::NoArrow;
  }
}

qreal TurnOf(Qt::ArrowType arrow) {
  switch (arrow) {
    case Qt::DownArrow:
      return 180;
    case Qt::LeftArrow:
      return 270;
    case Qt::RightArrow:
      return 90;
    default:
      return 0;
  }
}

void DrawArrow(QPainter& painter, const QRect& place, Qt::ArrowType arrow, const QColor& colour) {
  constexpr qreal kLeast = 6;
  constexpr qreal kMost = 9;
  const qreal size = std::clamp<qreal>(std::min(place.width(), place.height()), kLeast, kMost);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(QRectF(place).center());
  painter.rotate(TurnOf(arrow));
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawPolygon(QPolygonF({{-size / 2, size / 3}, {size / 2, size / 3}, {0, -size / 3}}));
  painter.restore();
}

}  // namespace

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
  const bool enabled = option->state.testFlag(State_Enabled);
  const QColor ink = option->palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::Text);
  if (element == PE_Frame) {
    painter->save();
    painter->setPen(ink);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
    return;
  }
  const Qt::ArrowType arrow = ArrowOf(element, *option);
  if (arrow != Qt::NoArrow) return DrawArrow(*painter, option->rect, arrow, ink);
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

}  // namespace dayvane::widgets
