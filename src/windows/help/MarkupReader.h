// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "windows/help/HelpMarkup.h"
#include "windows/help/MarkupTag.h"

namespace dayvane::help {

/// Reads one body, forward only and without calling itself: however deep the markup lies, it takes no stack.
class MarkupReader {
 public:
  std::vector<Block> Read(std::string_view body);

 private:
  struct List {
    bool isNumbered = false;
    int items = 0;
  };

  void TakeText(std::string_view text);
  void TakeTag(const MarkupTag& tag);
  void TakeLetters(const MarkupTag& tag);
  void TakeParagraph(const MarkupTag& tag);
  void TakeList(const MarkupTag& tag);
  void TakeTable(const MarkupTag& tag);
  void TakePicture(const MarkupTag& tag);
  void OpenTable(const MarkupTag& tag);
  void CloseTable();
  void OpenCell(bool isHeading);

  Piece NewPiece() const;
  void Append(std::string_view text);
  void EndParagraph();

  std::vector<Block> m_blocks;
  std::vector<List> m_lists;
  Paragraph m_paragraph;  ///< the one being read
  Table m_table;          ///< the one being read, where m_tables is not 0
  int m_tables = 0;       ///< that are open, one in another
  int m_bold = 0;
  int m_italic = 0;
  std::string m_link;
};

}  // namespace dayvane::help
