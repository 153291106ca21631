// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace dayvane::widgets {

/// A model's role for the whole text of a cell that shows it shortened, such as a path: that is what the tip tells, and
/// what does not fit is cut in the middle, because both ends matter. No text for other cells.
inline constexpr int kWholeTextRole = Qt::UserRole;

/// A selection in a view that does not have the keyboard is drawn in grey: where the keyboard is, it has its colour.
void MuteWithoutFocus(QStyleOptionViewItem& option);

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

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  QString TipFor(const QStyleOptionViewItem& option, const QModelIndex& index) const;

  QSize m_cell;
};

}  // namespace dayvane::widgets
