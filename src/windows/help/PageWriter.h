// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "windows/help/ColumnWidths.h"
#include "windows/help/HelpPage.h"

namespace dayvane::help {

/// Writes one page as RTF.
class PageWriter {
 public:
  /// The layout must outlive the writer.
  PageWriter(const PageLayout& layout, bool isPopup);

  void Write(const Block& block);

  /// The page; nothing may be written after that.
  Page Finish();

 private:
  /// Around a paragraph, in pixels at 96 dots per inch.
  struct Spaces {
    int above = 0;
    int below = 0;
    int left = 0;
    int hanging = 0;  ///< how far the first line begins before the others
  };

  void WriteParagraph(const Paragraph& paragraph);
  void EndParagraph();
  void WriteTable(const Table& table);
  void WriteRow(const Table& table, const std::vector<Cell>& row, const std::vector<int>& widths);
  void WriteCell(const Table& table, const Cell& cell);
  void BeginParagraph(const Paragraph& paragraph, const Spaces& spaces, bool inTable);
  void WritePieces(const Paragraph& paragraph);
  void WritePiece(const Piece& piece);
  void WriteText(const std::wstring& text);
  void WriteCharacter(wchar_t character);
  void WriteBorders(TableKind kind);

  Spaces SpacesOf(const Paragraph& paragraph) const;
  std::vector<ColumnNeed> NeedsOf(const Table& table) const;
  ColumnNeed NeedOf(const Paragraph& paragraph, bool isBold) const;
  std::string Word(const char* name, double pixels) const;
  std::string FontSize(double factor) const;

  const PageLayout& m_layout;
  bool m_isPopup;
  COLORREF m_background;  ///< behind what is being written
  bool m_isOpen = false;  ///< a paragraph is written and not ended
  Page m_page;
};

}  // namespace dayvane::help
