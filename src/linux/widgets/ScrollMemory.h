// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <string>

class QAbstractItemView;
class QModelIndex;

namespace dayvane::widgets {

/// Where the user had scrolled a view to, kept while its control is emptied and filled again.
class ScrollMemory {
 public:
  /// `known` is the key of a row by which the same contents are known again; `selected` the selected row, if any.
  void Remember(const QAbstractItemView& view, std::string known, std::string selectedKey, const QModelIndex& selected);

  const std::string& KnownKey() const { return m_knownKey; }

  /// Scrolls the view, which must be laid out, back; to its start when the contents are others.
  void Restore(const QAbstractItemView& view, bool sameContents) const;

  /// A selection that comes back is not brought into view when the user had scrolled away from it.
  bool ScrolledAwayFrom(const std::string& key) const { return key == m_selectedKey && !m_selectionInView; }
  void ForgetSelection() { m_selectedKey.clear(); }

 private:
  std::string m_knownKey;
  std::string m_selectedKey;
  bool m_selectionInView = false;
  QPoint m_scroll;
};

}  // namespace dayvane::widgets
