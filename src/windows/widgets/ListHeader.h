// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "controls/ListView.h"
#include "windows/widgets/ColumnFit.h"

namespace dayvane::widgets {

/// The columns of a list in its window: their headings, the arrow at the one that the rows are sorted by, and their
/// widths, which the user drags.
class ListHeader {
 public:
  explicit ListHeader(controls::ListView& control) : m_control(control), m_fit(control) {}

  /// The window of the list and its look.
  void Show(HWND list, const Look& look);
  void ShowWidths(HWND list, const Look& look);

  /// The rows or the font have changed.
  void ForgetWidths() { m_fit.Forget(); }

  /// What the header tells the list: a width that the user drags becomes the control's, and from now on every column
  /// has a width of its own.
  void OnNotify(HWND list, const NMHDR& notice, const Look& look);

 private:
  struct Heading {
    std::string text;
    bool isRight = false;
    int arrow = 0;  ///< HDF_…
    friend bool operator==(const Heading&, const Heading&) = default;
  };

  Heading HeadingOf(std::size_t column) const;
  void TakeWidths(HWND list, std::size_t column, int width, const Look& look);

  controls::ListView& m_control;
  ColumnFit m_fit;
  std::vector<Heading> m_shown;
  bool m_showing = false;  ///< what changes in the window is not the user's doing
};

}  // namespace dayvane::widgets
