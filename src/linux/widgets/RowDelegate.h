// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace dayvane::widgets {

/// Draws rows with room above and below their text, which styles leave out, and tells a text that does not fit as a
/// tip.
class RowDelegate : public QStyledItemDelegate {
 public:
  /// Draws every item in a cell of this size, whatever its text. An icon view takes all items to be as large as the
  /// first one.
  void SetCell(QSize cell) { m_cell = cell; }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  QSize m_cell;
};

}  // namespace dayvane::widgets
