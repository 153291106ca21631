// SPDX-License-Identifier: MIT
#include "linux/widgets/ScrollMemory.h"

#include <QAbstractItemView>
#include <QScrollBar>
#include <utility>

namespace dayvane::widgets {

void ScrollMemory::Remember(const QAbstractItemView& view, std::string known, std::string selectedKey,
                            const QModelIndex& selected) {
  m_knownKey = std::move(known);
  m_selectedKey = std::move(selectedKey);
  m_selectionInView = selected.isValid() && view.viewport()->rect().intersects(view.visualRect(selected));
  m_scroll = {view.horizontalScrollBar()->value(), view.verticalScrollBar()->value()};
}

void ScrollMemory::Restore(const QAbstractItemView& view, bool sameContents) const {
  const QPoint scroll = sameContents ? m_scroll : QPoint();
  view.horizontalScrollBar()->setValue(scroll.x());
  view.verticalScrollBar()->setValue(scroll.y());
}

}  // namespace dayvane::widgets
