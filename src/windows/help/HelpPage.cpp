// SPDX-License-Identifier: MIT
#include "windows/help/HelpPage.h"

#include "windows/help/PageWriter.h"

namespace dayvane::help {

namespace {

Piece Letters(std::string_view text) {
  Piece piece;
  piece.text = text;
  return piece;
}

}  // namespace

Page MakePage(std::string_view title, const std::vector<Block>& blocks, const PageLayout& layout, bool popup) {
  PageWriter writer(layout, popup);
  Paragraph heading;
  heading.kind = ParagraphKind::Title;
  heading.pieces.push_back(Letters(title));
  writer.Write(heading);
  for (const Block& block : blocks) writer.Write(block);
  return writer.Finish();
}

std::vector<Block> NoticeBlocks(const std::string& text, const std::string& link, const std::string& linkText) {
  Paragraph notice;
  notice.pieces.push_back(Letters(text));
  std::vector<Block> blocks{notice};
  if (link.empty()) return blocks;
  Paragraph way;
  way.pieces.push_back(Letters(linkText));
  way.pieces.back().link = link;
  blocks.emplace_back(way);
  return blocks;
}

}  // namespace dayvane::help
