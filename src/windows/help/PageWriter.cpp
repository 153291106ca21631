// SPDX-License-Identifier: MIT
#include "windows/help/PageWriter.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "windows/files/WideText.h"

namespace dayvane::help {

namespace {

constexpr double kTwipsPerPixel = 15;  ///< at 96 dots per inch

constexpr int kCellMargin = 8;  ///< beside what stands in a cell
constexpr int kListStep = 22;
constexpr int kTightest = 24;  ///< room for a column, whatever stands in it

// Places in the colour table.
enum Colour { kText = 1, kAccent, kLink, kFaint, kShade, kLine, kBackground };

std::string ColourTable(const HelpColours& colours) {
  std::string table = "{\\colortbl;";
  for (const COLORREF colour :
       {colours.text, colours.accent, colours.link, colours.faint, colours.shade, colours.line, colours.background})
    table += "\\red" + std::to_string(GetRValue(colour)) + "\\green" + std::to_string(GetGValue(colour)) + "\\blue" +
             std::to_string(GetBValue(colour)) + ";";
  return table + "}";
}

std::wstring Wide(const std::string& text) {
  return files::ToWide(text).value_or(L"");
}

Colour ColourOf(ParagraphKind kind) {
  if (kind == ParagraphKind::Title || kind == ParagraphKind::Heading) return kAccent;
  return kind == ParagraphKind::SeeAlso ? kFaint : kText;
}

bool IsShaded(TableKind kind, const Cell& cell) {
  return kind == TableKind::Tip || (kind == TableKind::Grid && cell.isHeading);
}

}  // namespace

PageWriter::PageWriter(const PageLayout& layout, bool isPopup)
    : m_layout(layout), m_isPopup(isPopup), m_background(layout.colours.background) {
  m_page.richText = "{\\rtf1\\ansi\\uc1\\deff0{\\fonttbl{\\f0\\fnil ";
  WriteText(layout.font);
  m_page.richText += ";}}" + ColourTable(layout.colours);
}

Page PageWriter::Finish() {
  m_page.richText += "}";
  return std::move(m_page);
}

void PageWriter::Write(const Block& block) {
  if (const auto* table = std::get_if<Table>(&block))
    WriteTable(*table);
  else
    WriteParagraph(std::get<Paragraph>(block));
}

PageWriter::Spaces PageWriter::SpacesOf(const Paragraph& paragraph) const {
  switch (paragraph.kind) {
    case ParagraphKind::Title:
      return m_isPopup ? Spaces{0, 3} : Spaces{0, 10};
    case ParagraphKind::Heading:
      return {16, 6};
    case ParagraphKind::Quote:
      return {6, 6, 24};
    case ParagraphKind::SeeAlso:
      return {14, 0};
    case ParagraphKind::Item:
      return {4, 4, kListStep * paragraph.depth, paragraph.bullet.empty() ? 0 : kListStep - 6};
    case ParagraphKind::Text:
      break;
  }
  return m_isPopup ? Spaces{2, 2} : Spaces{6, 6};
}

void PageWriter::WriteParagraph(const Paragraph& paragraph) {
  EndParagraph();
  BeginParagraph(paragraph, SpacesOf(paragraph), false);
  WritePieces(paragraph);
  m_isOpen = true;
}

/// The last one stays open: an end would be followed by an empty paragraph, but not on every system.
void PageWriter::EndParagraph() {
  if (std::exchange(m_isOpen, false)) m_page.richText += "\\par\n";
}

void PageWriter::BeginParagraph(const Paragraph& paragraph, const Spaces& spaces, bool inTable) {
  const bool isTitle = paragraph.kind == ParagraphKind::Title;
  const bool isHeading = paragraph.kind == ParagraphKind::Heading;
  const double factor = isTitle && !m_isPopup ? 1.8 : isHeading ? 1.35 : 1;
  std::string& out = m_page.richText;
  out += "\\pard";
  if (inTable) out += "\\intbl";
  out += Word("sb", spaces.above) + Word("sa", spaces.below) + Word("li", spaces.left) + Word("fi", -spaces.hanging);
  if (spaces.hanging > 0) out += Word("tx", spaces.left);
  out += "\\plain\\f0\\cf" + std::to_string(ColourOf(paragraph.kind)) + FontSize(factor);
  out += isTitle || isHeading ? "\\b" : "";
  out += paragraph.kind == ParagraphKind::Quote ? "\\i " : " ";
}

void PageWriter::WritePieces(const Paragraph& paragraph) {
  if (!paragraph.bullet.empty()) {
    WriteText(Wide(paragraph.bullet));
    m_page.richText += "\\tab ";
  }
  for (const Piece& piece : paragraph.pieces) WritePiece(piece);
}

void PageWriter::WritePiece(const Piece& piece) {
  std::string& out = m_page.richText;
  if (!piece.picture.empty()) {
    const std::string picture = m_layout.picture ? m_layout.picture(piece, m_background) : std::string();
    out += picture;
    if (!picture.empty()) return;
  }
  const std::wstring text = Wide(piece.text);
  if (text.empty()) return;
  std::string kind;
  kind += piece.isBold ? "\\b" : "";
  kind += piece.isItalic ? "\\i" : "";
  if (!piece.link.empty()) {
    kind += "\\ul\\cf" + std::to_string(kLink);
    m_page.links.push_back({text, piece.link});
  }
  if (!kind.empty()) out += "{" + kind + " ";
  WriteText(text);
  if (!kind.empty()) out += "}";
}

void PageWriter::WriteText(const std::wstring& text) {
  for (const wchar_t character : text) WriteCharacter(character);
}

void PageWriter::WriteCharacter(wchar_t character) {
  std::string& out = m_page.richText;
  if (character == L'\n') {
    out += "\\line ";
  } else if (character == L'\\' || character == L'{' || character == L'}') {
    out += '\\';
    out += static_cast<char>(character);
  } else if (character >= L' ' && character < 0x7F) {
    out += static_cast<char>(character);
  } else if (character >= 0x7F) {
    // RTF has signed numbers of 16 bits.
    out += "\\u" + std::to_string(static_cast<short>(character)) + "?";
  }
}

void PageWriter::WriteTable(const Table& table) {
  const std::vector<ColumnNeed> needs = NeedsOf(table);
  const int margins = 2 * kCellMargin * static_cast<int>(needs.size());
  const std::vector<int> widths = ColumnWidths(needs, m_layout.room - margins);
  // Two tables with nothing between them would be one.
  EndParagraph();
  m_page.richText += "\\pard\\plain\\fs4\\par\n";
  for (const std::vector<Cell>& row : table.rows) WriteRow(table, row, widths);
  m_page.richText += "\\pard\\plain\\fs8 ";
  m_isOpen = true;
}

void PageWriter::WriteRow(const Table& table, const std::vector<Cell>& row, const std::vector<int>& widths) {
  m_page.richText += "\\trowd" + Word("trgaph", kCellMargin) + Word("trleft", 0);
  int right = 0;
  for (std::size_t column = 0; column < row.size(); column++) {
    right += widths[column] + 2 * kCellMargin;
    // The last cell of a row that is short has what is left.
    if (column + 1 == row.size())
      for (std::size_t rest = row.size(); rest < widths.size(); rest++) right += widths[rest] + 2 * kCellMargin;
    m_page.richText += "\\clvertalc";
    WriteBorders(table.kind);
    if (IsShaded(table.kind, row[column])) m_page.richText += "\\clcbpat" + std::to_string(kShade);
    m_page.richText += Word("cellx", right);
  }
  m_page.richText += "\n";
  for (const Cell& cell : row) WriteCell(table, cell);
  m_page.richText += "\\row\n";
}

/// Of the background's colour where there are to be none: some rich texts draw a line where nothing is said.
void PageWriter::WriteBorders(TableKind kind) {
  const Colour colour = kind == TableKind::Cards ? kBackground : kLine;
  for (const char* side : {"\\clbrdrt", "\\clbrdrl", "\\clbrdrb", "\\clbrdrr"}) {
    m_page.richText += side;
    m_page.richText += "\\brdrs" + Word("brdrw", 1) + "\\brdrcf" + std::to_string(colour);
  }
}

void PageWriter::WriteCell(const Table& table, const Cell& cell) {
  const bool isShaded = IsShaded(table.kind, cell);
  m_background = isShaded ? m_layout.colours.shade : m_layout.colours.background;
  const int space = table.kind == TableKind::Cards ? 6 : 5;
  bool isFirst = true;
  for (const Paragraph& paragraph : cell.paragraphs) {
    if (!isFirst) m_page.richText += "\\par\n";
    Spaces spaces = SpacesOf(paragraph);
    spaces.above = spaces.below = space;
    BeginParagraph(paragraph, spaces, true);
    if (cell.isHeading) m_page.richText += "\\b ";
    WritePieces(paragraph);
    isFirst = false;
  }
  if (isFirst) BeginParagraph({}, {space, space}, true);
  m_page.richText += "\\cell\n";
  m_background = m_layout.colours.background;
}

std::vector<ColumnNeed> PageWriter::NeedsOf(const Table& table) const {
  std::vector<ColumnNeed> needs;
  for (const std::vector<Cell>& row : table.rows) {
    needs.resize(std::max(needs.size(), row.size()), {kTightest, kTightest});
    for (std::size_t column = 0; column < row.size(); column++) {
      for (const Paragraph& paragraph : row[column].paragraphs) {
        const ColumnNeed need = NeedOf(paragraph, row[column].isHeading);
        needs[column].least = std::max(needs[column].least, need.least);
        needs[column].whole = std::max(needs[column].whole, need.whole);
      }
    }
  }
  return needs;
}

ColumnNeed PageWriter::NeedOf(const Paragraph& paragraph, bool isBold) const {
  ColumnNeed need;
  int line = 0;
  const auto take = [&](int width) {
    need.least = std::max(need.least, width);
    line += width;
    need.whole = std::max(need.whole, line);
  };
  for (const Piece& piece : paragraph.pieces) {
    if (!piece.picture.empty()) {
      take(piece.width);
      continue;
    }
    const std::wstring wide = Wide(piece.text);
    for (std::wstring_view text = wide; !text.empty();) {
      const std::size_t end = std::min(text.find_first_of(L" \n"), text.size() - 1) + 1;
      const bool breaks = text[end - 1] == L'\n';
      take(m_layout.measure(std::wstring(text.substr(0, breaks ? end - 1 : end)), isBold || piece.isBold));
      if (breaks) line = 0;
      text.remove_prefix(end);
    }
  }
  const int indent = SpacesOf(paragraph).left + 2;  // letters may reach over what was measured
  return {need.least + indent, need.whole + indent};
}

std::string PageWriter::Word(const char* name, double pixels) const {
  return "\\" + (name + std::to_string(std::lround(pixels * kTwipsPerPixel * m_layout.scale)));
}

/// RTF counts in half points.
std::string PageWriter::FontSize(double factor) const {
  return "\\fs" + std::to_string(std::max(2L, std::lround(2 * m_layout.points * factor * m_layout.scale)));
}

}  // namespace dayvane::help
