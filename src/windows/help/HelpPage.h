// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "windows/help/HelpMarkup.h"
#include "windows/help/HelpStyle.h"

/// How a topic becomes a page that the system's rich text draws.
namespace dayvane::help {

/// For whom a page is laid out. The rich text counts in twips of the dots per inch that it takes the screen to have,
/// which need not be those of the screen that the window is on: `scale` is that, and every length here is in pixels at
/// 96 dots per inch.
struct PageLayout {
  std::wstring font;
  double points = 9;  ///< size of the letters
  double scale = 1;   ///< of all lengths, the letters' too
  int room = 640;     ///< width of a line
  HelpColours colours;

  /// Width of a text of one line, in pixels at 96 dots per inch.
  std::function<int(const std::wstring& text, bool isBold)> measure;

  /// The picture as rich text; empty where it cannot be drawn, and its own text stands for it.
  std::function<std::string(const Piece& picture, COLORREF background)> picture;
};

/// A link as it stands on the page.
struct PageLink {
  std::wstring text;
  std::string topic;
};

struct Page {
  std::string richText;         ///< RTF; 7-bit
  std::vector<PageLink> links;  ///< from top to bottom
};

/// A whole page. `title` is plain text; `popup` makes it small, for a window that explains one control.
Page MakePage(std::string_view title, const std::vector<Block>& blocks, const PageLayout& layout, bool popup = false);

/// The body of a page of the viewer's own, for what the help file does not hold. `text` is plain text; `link`, a
/// topic's name, may be empty.
std::vector<Block> NoticeBlocks(const std::string& text, const std::string& link, const std::string& linkText);

}  // namespace dayvane::help
