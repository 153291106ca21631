// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/support/Random.h"
#include "windows/help/HelpMarkup.h"

namespace dayvane::help {
namespace {

const Paragraph& ParagraphAt(const std::vector<Block>& blocks, std::size_t index) {
  return std::get<Paragraph>(blocks.at(index));
}

std::string TextOf(const Paragraph& paragraph) {
  std::string text;
  for (const Piece& piece : paragraph.pieces) text += piece.text;
  return text;
}

TEST(HelpMarkup, ParagraphsAndHeadingsComeInTheirOrder) {
  const auto blocks = ReadMarkup("<h2>How</h2>\n<p>One  \n two</p><p class=\"see\">See</p><p class=\"quote\">Q</p>");
  ASSERT_EQ(blocks.size(), 4U);
  EXPECT_EQ(ParagraphAt(blocks, 0).kind, ParagraphKind::Heading);
  EXPECT_EQ(TextOf(ParagraphAt(blocks, 1)), "One two");
  EXPECT_EQ(ParagraphAt(blocks, 2).kind, ParagraphKind::SeeAlso);
  EXPECT_EQ(ParagraphAt(blocks, 3).kind, ParagraphKind::Quote);
}

TEST(HelpMarkup, LettersKeepTheirKindAndTheBlanksBetweenThem) {
  const auto blocks = ReadMarkup("<p>A <b>bold <i>both</i></b> <a href=\"day-tree\">link</a>.</p>");
  const std::vector<Piece>& pieces = ParagraphAt(blocks, 0).pieces;
  EXPECT_EQ(TextOf(ParagraphAt(blocks, 0)), "A bold both link.");
  ASSERT_EQ(pieces.size(), 6U);
  EXPECT_TRUE(pieces[1].isBold && !pieces[1].isItalic);
  EXPECT_TRUE(pieces[2].isBold && pieces[2].isItalic);
  EXPECT_EQ(pieces[4].link, "day-tree");
  EXPECT_EQ(pieces[5].link, "");
}

TEST(HelpMarkup, ReferencesAreCharacters) {
  EXPECT_EQ(TextOf(ParagraphAt(ReadMarkup("<p>Tom &amp; &#916; &#x6587; &lt;b&gt;</p>"), 0)), "Tom & Δ 文 <b>");
}

TEST(HelpMarkup, ItemsAreNumberedOrBulletedByTheirList) {
  const auto blocks = ReadMarkup("<ol><li>A</li><li>B<ul><li>C</li></ul></li></ol><p>D</p>");
  ASSERT_EQ(blocks.size(), 4U);
  EXPECT_EQ(ParagraphAt(blocks, 0).bullet, "1.");
  EXPECT_EQ(ParagraphAt(blocks, 1).bullet, "2.");
  EXPECT_EQ(ParagraphAt(blocks, 2).bullet, "•");
  EXPECT_EQ(ParagraphAt(blocks, 2).depth, 2);
  EXPECT_EQ(ParagraphAt(blocks, 3).kind, ParagraphKind::Text);
}

TEST(HelpMarkup, AParagraphInAnItemIsTheItem) {
  const auto blocks = ReadMarkup("<ul><li><p>A</p></li></ul>");
  EXPECT_EQ(ParagraphAt(blocks, 0).bullet, "•");
}

TEST(HelpMarkup, TablesHaveRowsOfCells) {
  const auto blocks = ReadMarkup(
      "<table class=\"grid\"><tr><th></th><th>Part</th></tr>\n<tr><td>1</td><td><p>A</p><p>B</p></td></tr></table>");
  const auto& table = std::get<Table>(blocks.at(0));
  ASSERT_EQ(table.rows.size(), 2U);
  ASSERT_EQ(table.rows[0].size(), 2U);
  EXPECT_TRUE(table.rows[0][1].isHeading);
  EXPECT_TRUE(table.rows[0][0].paragraphs.empty());
  EXPECT_EQ(table.rows[1][1].paragraphs.size(), 2U);
}

TEST(HelpMarkup, ATableInATableIsFurtherTextOfItsCell) {
  const auto blocks =
      ReadMarkup("<table><tr><td>A<table class=\"tip\"><tr><td>B</td></tr></table>C</td><td>D</td></tr></table>");
  ASSERT_EQ(blocks.size(), 1U);
  const auto& table = std::get<Table>(blocks[0]);
  EXPECT_EQ(table.kind, TableKind::Grid);
  ASSERT_EQ(table.rows.size(), 1U);
  ASSERT_EQ(table.rows[0].size(), 2U);
  EXPECT_EQ(table.rows[0][0].paragraphs.size(), 3U);
}

TEST(HelpMarkup, APictureHasItsSizeAndItsWords) {
  const auto blocks = ReadMarkup(R"(<p><img src="a.png?16x20" width="16" height="20" alt="A &amp; B"/></p>)");
  const Piece& piece = ParagraphAt(blocks, 0).pieces.at(0);
  EXPECT_EQ(piece.picture, "a.png");
  EXPECT_EQ(piece.width, 16);
  EXPECT_EQ(piece.height, 20);
  EXPECT_EQ(piece.text, "A & B");
}

TEST(HelpMarkup, ALyingPictureSizeIsKeptWithinBounds) {
  const auto blocks = ReadMarkup(R"(<p><img src="a.png" width="999999" height="-5" alt=""/></p>)");
  EXPECT_EQ(ParagraphAt(blocks, 0).pieces.at(0).width, 2000);
  EXPECT_EQ(ParagraphAt(blocks, 0).pieces.at(0).height, 0);
}

TEST(HelpMarkup, WhatBreaksOffEndsThere) {
  const std::string body =
      R"(<p>A <b>b</b> &amp; <a href="x">l</a></p><table><tr><td>1</td></tr></table><ul><li>I</li>)";
  for (std::size_t size = 0; size <= body.size(); size++) ReadMarkup(body.substr(0, size));
  EXPECT_EQ(TextOf(ParagraphAt(ReadMarkup("<p>A <b"), 0)), "A");
}

TEST(HelpMarkup, TagsInAnyOrderDoNoHarm) {
  const char* parts[] = {
      "<table>", "</table>", "<tr>", "</tr>", "<td>",  "</td>", "<ul>", "</ul>",      "<li>", "</li>",
      "<p>",     "</p>",     "<b>",  "</b>",  "<br/>", "x",     "&lt;", "<a href=\"", "\">",  "<img src=\"y\"/>"};
  dayvane::testing::Random random(11);
  for (int round = 0; round < 2000; round++) {
    std::string body;
    for (int part = 0; part < 40; part++) body += parts[random.UnsignedBelow(static_cast<int>(std::size(parts)))];
    for (const Block& block : ReadMarkup(body)) {
      if (!std::holds_alternative<Table>(block)) continue;
      for (const std::vector<Cell>& row : std::get<Table>(block).rows) EXPECT_FALSE(row.empty()) << body;
    }
  }
}

TEST(HelpMarkup, DeepNestingAndManyCellsAreBounded) {
  std::string deep;
  for (int level = 0; level < 5000; level++) deep += "<ul><li>";
  EXPECT_EQ(ParagraphAt(ReadMarkup(deep + "x"), 0).depth, kDeepestList);
  std::string wide = "<table><tr>";
  for (int cell = 0; cell < 1000; cell++) wide += "<td>x</td>";
  EXPECT_EQ(std::get<Table>(ReadMarkup(wide).at(0)).rows[0].size(), static_cast<std::size_t>(kMostCells));
}

TEST(HelpMarkup, OfAnEndlessBodyTheBeginningIsTaken) {
  std::string body;
  while (body.size() < 3 * kLongestBody) body += "<p>Δocument</p>";
  const auto blocks = ReadMarkup(body);
  EXPECT_LT(blocks.size(), body.size() / 16 / 2);
  EXPECT_EQ(TextOf(ParagraphAt(blocks, blocks.size() - 1)), "Δocument");
}

}  // namespace
}  // namespace dayvane::help
