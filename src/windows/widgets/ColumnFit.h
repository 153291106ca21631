// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "windows/widgets/Look.h"

namespace dayvane::controls {
class ListView;
}

namespace dayvane::widgets {

/// How wide a table draws its columns while the user has not chosen: those of short texts are as wide as their texts,
/// name and path share what is left, and neither takes room that the other needs more.
class ColumnFit {
 public:
  /// The list must outlive it.
  explicit ColumnFit(const controls::ListView& list) : m_list(list) {}

  /// After the rows, the headings or the font have changed: what their texts want is measured again.
  void Forget() { m_wanted.clear(); }

  /// Pixels, one for each column, that fill a room of `width`.
  std::vector<int> Widths(const Look& look, int width);

 private:
  void Measure(const Look& look);
  int WantedByRows(std::size_t column, HDC device) const;

  const controls::ListView& m_list;
  std::vector<int> m_wanted;  ///< empty until measured
};

}  // namespace dayvane::widgets
