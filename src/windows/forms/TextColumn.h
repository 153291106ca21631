// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "windows/forms/TextPresenter.h"

namespace dayvane::widgets {

/// Texts below each other, with wider gaps between groups.
class TextColumn {
 public:
  /// The text must outlive the column. `gapAbove`: at 96 dots per inch.
  void Add(TextPresenter& text, int gapAbove) { m_lines.push_back({text, gapAbove}); }

  void SetLook(const SharedLook& look) const;

  /// The pixels that the column takes where lines have this width at most.
  SIZE SizeWithin(int width, const Look& look) const;

  /// Gives every text its place, from a corner in the parent.
  void Place(POINT corner, int width, const Look& look) const;

 private:
  struct Line {
    TextPresenter& text;
    int gapAbove;
  };

  std::vector<Line> m_lines;
};

}  // namespace dayvane::widgets
