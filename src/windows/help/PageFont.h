// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "windows/widgets/Look.h"

namespace dayvane::help {

/// The letters of a page: the font of the user's messages, in a size of the user's choice.
class PageFont {
 public:
  /// `steps` makes it larger or smaller, a point each.
  PageFont(const widgets::Look& look, int steps);
  PageFont(const PageFont&) = delete;
  PageFont& operator=(const PageFont&) = delete;
  ~PageFont();

  const std::wstring& Name() const { return m_name; }
  double Points() const { return m_points; }

  /// Width of a text of one line, in pixels at 96 dots per inch.
  int WidthOf(const std::wstring& text, bool isBold) const;

 private:
  std::wstring m_name;
  double m_points;
  widgets::Font m_normal;
  widgets::Font m_bold;
  HDC m_screen;
};

}  // namespace dayvane::help
