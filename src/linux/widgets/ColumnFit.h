// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

class QTreeView;

namespace dayvane::controls {
class ListView;
}

namespace dayvane::widgets {

/// How wide a table draws its columns while the user has not chosen: those of short texts are as wide as their texts,
/// name and path share what is left, and neither takes room that the other needs more.
class ColumnFit {
 public:
  /// Both must outlive it; the view shows the list.
  ColumnFit(const controls::ListView& list, const QTreeView& view) : m_list(list), m_view(view) {}

  /// After the rows, the headings or the font have changed: what their texts want is measured again.
  void Forget() { m_wanted.clear(); }

  /// Logical pixels, one for each column.
  std::vector<int> Widths();

 private:
  void Measure();
  int WantedByRows(int column) const;

  const controls::ListView& m_list;
  const QTreeView& m_view;
  std::vector<int> m_wanted;  ///< empty until measured
};

}  // namespace dayvane::widgets
