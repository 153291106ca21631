// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "help/HelpFile.h"
#include "windows/help/HelpMarkup.h"
#include "windows/help/HelpPicture.h"

namespace dayvane::help {

/// Draws the pictures of a help file for a screen, and remembers those drawn: a page is laid out again whenever its
/// window has another width.
class PagePictures {
 public:
  /// `scale` is that of the page's layout. The file must live as long as the pictures, or be null.
  PagePictures(const HelpFile* file, UINT dpi, double scale) : m_file(file), m_dpi(dpi), m_scale(scale) {}

  /// As RTF; empty where the file has no such picture.
  const std::string& RichText(const Piece& picture, COLORREF background);

 private:
  std::string Draw(const Piece& picture, COLORREF background) const;

  const HelpFile* m_file;
  UINT m_dpi;
  double m_scale;
  std::map<std::string, std::string> m_drawn;
};

}  // namespace dayvane::help
