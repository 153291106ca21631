// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>
#include <QPainter>
#include <QTreeView>

#include "linux/widgets/ClassicView.h"

namespace dayvane::widgets {

/// The table of a list's details. A selected row reaches to the view's edge, also where its columns end before.
class DetailsTable : public ClassicView<QTreeView> {
 protected:
  void drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QTreeView::drawRow(painter, option, index);
    const int end = header()->length() - header()->offset();
    if (end >= viewport()->width() || !selectionModel()->isRowSelected(index.row(), index.parent())) return;
    QStyleOptionViewItem rest = option;
    rest.rect.setLeft(end);
    rest.rect.setRight(viewport()->width() - 1);
    rest.state |= QStyle::State_Selected;
    rest.viewItemPosition = QStyleOptionViewItem::End;
    style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &rest, painter, this);
  }
};

}  // namespace dayvane::widgets
