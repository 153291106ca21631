// SPDX-License-Identifier: MIT
#include "linux/widgets/RowDelegate.h"

#include <QAbstractItemView>
#include <QHash>
#include <QHelpEvent>
#include <QToolTip>

#include "linux/widgets/Colours.h"

namespace dayvane::widgets {

namespace {

// Logical pixels.
constexpr int kRoom = 4;
constexpr int kRoomAfterNumber = 8;

/// Styles keep what they have drawn by the identity of the palette, so the same one must give the same one.
QPalette Muted(const QPalette& palette) {
  constexpr qsizetype kMostPalettes = 8;
  static QHash<qint64, QPalette> known;
  const auto found = known.constFind(palette.cacheKey());
  if (found != known.constEnd()) return *found;
  QPalette muted = palette;
  muted.setColor(QPalette::All, QPalette::Highlight, MutedSelection(palette));
  muted.setColor(QPalette::All, QPalette::HighlightedText, palette.color(QPalette::Text));
  if (known.size() >= kMostPalettes) known.clear();
  return *known.insert(palette.cacheKey(), muted);
}

}  // namespace

void MuteWithoutFocus(QStyleOptionViewItem& option) {
  if (option.widget != nullptr && !option.widget->hasFocus()) option.palette = Muted(option.palette);
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (index.data(kWholeTextRole).isValid()) option->textElideMode = Qt::ElideMiddle;
  // Room at the end of a number, which would touch the text of the next column.
  if (!option->displayAlignment.testFlag(Qt::AlignRight)) return;
  option->features |= QStyleOptionViewItem::HasDecoration;
  option->decorationPosition = QStyleOptionViewItem::Right;
  option->decorationSize = QSize(kRoomAfterNumber, 1);
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return m_cell.isValid() ? m_cell : QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRoom);
}

QString RowDelegate::TipFor(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QString whole = index.data(kWholeTextRole).toString();
  const QString shown = index.data().toString();
  if (!whole.isEmpty() && whole != shown) return whole;
  if (QString tip = index.data(Qt::ToolTipRole).toString(); !tip.isEmpty()) return tip;
  QStyleOptionViewItem wide = option;
  wide.features.setFlag(QStyleOptionViewItem::WrapText, false);
  const bool fits = QStyledItemDelegate::sizeHint(wide, index).width() <= option.rect.width();
  return fits ? QString() : shown;
}

bool RowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                            const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid()) return false;
  // Plain text: a name may look like markup.
  QToolTip::showText(event->globalPos(), TipFor(option, index).toHtmlEscaped(), view->viewport(), option.rect);
  return true;
}

}  // namespace dayvane::widgets
