// SPDX-License-Identifier: MIT
#include "linux/widgets/RowDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace dayvane::widgets {

namespace {

constexpr int kRoom = 4;  ///< logical pixels

}  // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return m_cell.isValid() ? m_cell : QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRoom);
}

bool RowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                            const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid()) return false;
  QStyleOptionViewItem wide = option;
  wide.features.setFlag(QStyleOptionViewItem::WrapText, false);
  const bool fits = QStyledItemDelegate::sizeHint(wide, index).width() <= option.rect.width();
  // Plain text: a name may look like markup.
  const QString text = fits ? QString() : index.data().toString().toHtmlEscaped();
  QToolTip::showText(event->globalPos(), text, view->viewport(), option.rect);
  return true;
}

}  // namespace dayvane::widgets
