// SPDX-License-Identifier: MIT
#include "linux/widgets/CalendarGrid.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>
#include <utility>

#include "linux/widgets/CalendarSpeech.h"
#include "linux/widgets/Colours.h"
#include "linux/widgets/RowDelegate.h"

namespace dayvane::widgets {

namespace {

// Logical pixels.
constexpr QSize kLeastCell{30, 24};
constexpr int kBarHeight = 3;
constexpr int kFrameWidth = 2;
constexpr int kRingRoom = 2;  ///< between ring and cell

constexpr int kWheelNotch = 120;  ///< Qt's: eighths of a degree

constexpr qreal kWeekendInk = 0.62;
constexpr qreal kOtherMonthInk = 0.45;

void DrawRing(QPainter& painter, const QRect& cell, const QColor& colour) {
  const int side = std::min(cell.width(), cell.height()) - 2 * kRingRoom;
  QRectF ring(0, 0, side, side);
  ring.moveCenter(QRectF(cell).center());
  painter.setPen(QPen(colour, 1.5));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(ring);
}

void DrawFrame(QPainter& painter, const QRect& cell, const QColor& colour) {
  painter.setPen(QPen(colour, kFrameWidth));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(cell.adjusted(1, 1, -kFrameWidth, -kFrameWidth));
}

void DrawBar(QPainter& painter, const QRect& cell, const QColor& colour) {
  const int width = cell.width() / 2;
  painter.fillRect(cell.center().x() - width / 2, cell.bottom() - kBarHeight, width, kBarHeight, colour);
}

}  // namespace

QColor DayDelegate::InkOf(const QPalette& palette, QDate date) const {
  if (m_model.IsListed(date)) return palette.color(QPalette::HighlightedText);
  if (!m_model.IsInMonth(date)) return Ink(palette, kOtherMonthInk);
  return date.dayOfWeek() >= Qt::Saturday ? Ink(palette, kWeekendInk) : palette.color(QPalette::Text);
}

void DayDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QDate date = m_model.DateAt(index);
  const QRect cell = option.rect;
  const bool listed = m_model.IsListed(date);
  const bool focused = option.widget == nullptr || option.widget->hasFocus();
  const QColor ink = InkOf(option.palette, date);
  const QColor accent = listed ? ink : option.widget->palette().color(QPalette::Highlight);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing, false);
  // In any case: the style has filled the selected cell, which is not the listed one's colour to have.
  painter->fillRect(cell, option.palette.color(listed ? QPalette::Highlight : QPalette::Base));
  const auto* grid = qobject_cast<const QAbstractItemView*>(option.widget);
  if (!listed && grid != nullptr && grid->currentIndex() == index)
    DrawFrame(*painter, cell, focused ? accent : Ink(option.palette, kOtherMonthInk));
  painter->setRenderHint(QPainter::Antialiasing);
  if (date == m_today()) DrawRing(*painter, cell, accent);
  QFont font = option.font;
  font.setBold(m_model.IsHighlighted(date));
  painter->setFont(font);
  painter->setPen(ink);
  painter->drawText(cell, Qt::AlignCenter, index.data().toString());
  if (m_model.IsHighlighted(date)) DrawBar(*painter, cell, accent);
  painter->restore();
}

void WeekdayHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
  painter->save();
  painter->fillRect(rect, palette().color(QPalette::Base));
  painter->setPen(Ink(palette(), kWeekendInk));
  painter->drawText(rect, Qt::AlignCenter, model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString());
  painter->restore();
}

CalendarGrid::CalendarGrid(CalendarModel& model, DayDelegate& delegate, Events&& events)
    : m_model(model), m_events(std::move(events)) {
  CalendarSpeech::Install();
  setHorizontalHeader(&m_weekdays);
  setModel(&model);
  setItemDelegate(&delegate);
  setFrameShape(NoFrame);
  setShowGrid(false);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  verticalHeader()->hide();
  m_weekdays.setHighlightSections(false);
  for (QHeaderView* header : {static_cast<QHeaderView*>(&m_weekdays), verticalHeader()}) {
    header->setMinimumSectionSize(1);
    header->setSectionResizeMode(QHeaderView::Stretch);
  }
}

void CalendarGrid::SetCurrent(QDate date) {
  m_model.ShowMonthOf(date);
  if (const QModelIndex index = m_model.IndexOf(date); index != currentIndex()) setCurrentIndex(index);
  viewport()->update();
}

void CalendarGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  // The table's own would tell screen readers of one of its cells.
  QAbstractItemView::currentChanged(current, previous);  // NOLINT(bugprone-parent-virtual-call)
  CalendarSpeech::SayCurrent(*this);
}

void CalendarGrid::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  // After the table itself was said to have the keyboard.
  QMetaObject::invokeMethod(
      this, [this] { CalendarSpeech::SayCurrent(*this); }, Qt::QueuedConnection);
}

QSize CalendarGrid::CellSize() const {
  const int width = fontMetrics().horizontalAdvance(QStringLiteral("0000"));
  return kLeastCell.expandedTo({width, fontMetrics().height() + 2 * kBarHeight});
}

QSize CalendarGrid::sizeHint() const {
  return {m_model.columnCount() * CellSize().width(),
          m_model.rowCount() * CellSize().height() + m_weekdays.sizeHint().height()};
}

void CalendarGrid::initViewItemOption(QStyleOptionViewItem* option) const {
  QTableView::initViewItemOption(option);
  MuteWithoutFocus(*option);
}

QDate CalendarGrid::MovedBy(int key) const {
  constexpr int kWeek = 7;
  const QDate date = CurrentDate();
  const int forward = isRightToLeft() ? -1 : 1;
  switch (key) {
    case Qt::Key_Left:
      return date.addDays(-forward);
    case Qt::Key_Right:
      return date.addDays(forward);
    case Qt::Key_Up:
      return date.addDays(-kWeek);
    case Qt::Key_Down:
      return date.addDays(kWeek);
    case Qt::Key_Home:
      return {date.year(), date.month(), 1};
    case Qt::Key_End:
      return {date.year(), date.month(), date.daysInMonth()};
    default:
      return {};
  }
}

void CalendarGrid::keyPressEvent(QKeyEvent* event) {
  const QDate moved = MovedBy(event->key());
  if (moved.isValid()) return m_events.move(moved);
  switch (event->key()) {
    case Qt::Key_PageUp:
      return m_events.changeMonths(-1);
    case Qt::Key_PageDown:
      return m_events.changeMonths(1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      return m_events.choose(CurrentDate());
    default:
      event->ignore();  // not the table's search by letters
  }
}

void CalendarGrid::mousePressEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && index.isValid()) m_events.choose(m_model.DateAt(index));
}

// Dragging does nothing, and a double click is two clicks.
void CalendarGrid::mouseMoveEvent(QMouseEvent*) {}
void CalendarGrid::mouseReleaseEvent(QMouseEvent*) {}
void CalendarGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
}

void CalendarGrid::wheelEvent(QWheelEvent* event) {
  m_wheel += event->angleDelta().y();
  const int notches = m_wheel / kWheelNotch;
  m_wheel %= kWheelNotch;
  if (notches != 0) m_events.changeMonths(-notches);
  event->accept();
}

}  // namespace dayvane::widgets
