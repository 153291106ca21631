// SPDX-License-Identifier: MIT
#include "windows/help/MarkupReader.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "help/PlainText.h"

namespace dayvane::help {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr int kLargestSide = 2000;  ///< of a picture; no page is that wide, and a lying size must not eat the memory

ParagraphKind KindOf(std::string_view styleClass) {
  if (styleClass == "quote") return ParagraphKind::Quote;
  return styleClass == "see" ? ParagraphKind::SeeAlso : ParagraphKind::Text;
}

TableKind TableKindOf(std::string_view styleClass) {
  if (styleClass == "tip") return TableKind::Tip;
  return styleClass == "cards" ? TableKind::Cards : TableKind::Grid;
}

int SideOf(std::string_view number) {
  return std::clamp(text::ToInt32(number).value_or(0), 0, kLargestSide);
}

bool EndsInBlank(const Paragraph& paragraph) {
  if (paragraph.pieces.empty()) return true;  // what a paragraph begins with is not shown
  const Piece& last = paragraph.pieces.back();
  return last.picture.empty() && (last.text.ends_with(' ') || last.text.ends_with('\n'));
}

bool SameLetters(const Piece& a, const Piece& b) {
  return a.picture.empty() && b.picture.empty() && a.isBold == b.isBold && a.isItalic == b.isItalic && a.link == b.link;
}

}  // namespace

std::vector<Block> MarkupReader::Read(std::string_view body) {
  while (!body.empty()) {
    const auto tagStart = body.find('<');
    TakeText(body.substr(0, tagStart));
    if (tagStart == std::string_view::npos) break;
    const auto tagEnd = body.find('>', tagStart);
    if (tagEnd == std::string_view::npos) break;
    TakeTag(MarkupTag(body.substr(tagStart + 1, tagEnd - tagStart - 1)));
    body.remove_prefix(tagEnd + 1);
  }
  EndParagraph();
  if (m_tables > 0) CloseTable();
  return std::move(m_blocks);
}

void MarkupReader::TakeText(std::string_view text) {
  while (!text.empty()) {
    const auto blanks = std::min(text.find_first_not_of(kBlanks), text.size());
    if (blanks > 0 && !EndsInBlank(m_paragraph)) Append(" ");
    text.remove_prefix(blanks);
    const auto end = text.starts_with('&') ? text.find(';') : text.find_first_of(" \t\r\n&");
    const bool isReference = text.starts_with('&');
    if (isReference && end == std::string_view::npos) return;
    const std::string_view word = text.substr(0, isReference ? end + 1 : end);
    Append(isReference ? PlainText(word) : std::string(word));
    text.remove_prefix(word.size());
  }
}

void MarkupReader::TakeTag(const MarkupTag& tag) {
  TakeLetters(tag);
  TakeParagraph(tag);
  TakeList(tag);
  TakeTable(tag);
}

void MarkupReader::TakeLetters(const MarkupTag& tag) {
  const int step = tag.Ends() ? -1 : 1;
  if (tag.Name() == "b") m_bold = std::max(0, m_bold + step);
  if (tag.Name() == "i") m_italic = std::max(0, m_italic + step);
  if (tag.Name() == "a") m_link = tag.Ends() ? std::string() : tag.Attribute("href");
  if (tag.Name() == "br" && !tag.Ends() && !m_paragraph.pieces.empty()) Append("\n");
  if (tag.Name() == "img" && !tag.Ends()) TakePicture(tag);
}

void MarkupReader::TakePicture(const MarkupTag& tag) {
  Piece piece = NewPiece();
  const std::string source = tag.Attribute("src");
  piece.picture = source.substr(0, source.find('?'));
  piece.width = SideOf(tag.Attribute("width"));
  piece.height = SideOf(tag.Attribute("height"));
  piece.text = tag.Attribute("alt");
  if (!piece.picture.empty()) m_paragraph.pieces.push_back(std::move(piece));
}

void MarkupReader::TakeParagraph(const MarkupTag& tag) {
  if (tag.Name() != "p" && tag.Name() != "h2") return;
  EndParagraph();
  if (tag.Ends() || m_paragraph.kind == ParagraphKind::Item) return;
  m_paragraph.kind = tag.Name() == "h2" ? ParagraphKind::Heading : KindOf(tag.Attribute("class"));
}

void MarkupReader::TakeList(const MarkupTag& tag) {
  const bool isNumbered = tag.Name() == "ol";
  if (isNumbered || tag.Name() == "ul") {
    EndParagraph();
    if (!tag.Ends()) m_lists.push_back({isNumbered, 0});
    if (tag.Ends() && !m_lists.empty()) m_lists.pop_back();
  }
  if (tag.Name() != "li") return;
  EndParagraph();
  m_paragraph = {};
  if (tag.Ends() || m_lists.empty()) return;
  List& list = m_lists.back();
  list.items++;
  m_paragraph.kind = ParagraphKind::Item;
  m_paragraph.depth = static_cast<int>(std::min<std::size_t>(m_lists.size(), kDeepestList));
  m_paragraph.bullet = list.isNumbered ? std::to_string(list.items) + "." : "\u2022";
}

void MarkupReader::TakeTable(const MarkupTag& tag) {
  if (tag.Name() == "table") OpenTable(tag);
  const bool isCell = tag.Name() == "td" || tag.Name() == "th";
  if (!isCell && tag.Name() != "tr") return;
  EndParagraph();
  if (tag.Ends() || m_tables != 1) return;
  if (isCell)
    OpenCell(tag.Name() == "th");
  else if (m_table.rows.empty() || !m_table.rows.back().empty())
    m_table.rows.emplace_back();
}

void MarkupReader::OpenTable(const MarkupTag& tag) {
  EndParagraph();
  if (!tag.Ends()) {
    if (m_tables++ == 0) m_table = Table{TableKindOf(tag.Attribute("class")), {}};
    return;
  }
  if (m_tables > 0 && --m_tables == 0) CloseTable();
}

void MarkupReader::CloseTable() {
  if (!m_table.rows.empty() && m_table.rows.back().empty()) m_table.rows.pop_back();
  if (!m_table.rows.empty()) m_blocks.emplace_back(std::move(m_table));
}

void MarkupReader::OpenCell(bool isHeading) {
  if (m_table.rows.empty()) m_table.rows.emplace_back();
  if (m_table.rows.back().size() < kMostCells) m_table.rows.back().push_back({isHeading, {}});
}

Piece MarkupReader::NewPiece() const {
  Piece piece;
  piece.isBold = m_bold > 0;
  piece.isItalic = m_italic > 0;
  piece.link = m_link;
  return piece;
}

void MarkupReader::Append(std::string_view text) {
  Piece piece = NewPiece();
  std::vector<Piece>& pieces = m_paragraph.pieces;
  if (pieces.empty() || !SameLetters(pieces.back(), piece)) pieces.push_back(std::move(piece));
  pieces.back().text += text;
}

void MarkupReader::EndParagraph() {
  Paragraph ended = std::exchange(m_paragraph, {});
  if (!ended.pieces.empty() && ended.pieces.back().text.ends_with(' ')) ended.pieces.back().text.pop_back();
  const bool isEmpty =
      std::ranges::all_of(ended.pieces, [](const Piece& piece) { return piece.text.empty() && piece.picture.empty(); });
  if (isEmpty) {
    // What comes in it is of its kind: "<li><p>".
    if (ended.kind == ParagraphKind::Item) m_paragraph = std::move(ended);
    return;
  }
  if (m_tables == 0)
    m_blocks.emplace_back(std::move(ended));
  else if (!m_table.rows.empty() && !m_table.rows.back().empty())
    m_table.rows.back().back().paragraphs.push_back(std::move(ended));
}

}  // namespace dayvane::help
