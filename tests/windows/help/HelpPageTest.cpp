// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "help/HelpFile.h"
#include "windows/help/ColumnWidths.h"
#include "windows/help/HelpHistory.h"
#include "windows/help/HelpPage.h"
#include "windows/help/HelpPicture.h"
#include "windows/help/PagePictures.h"

namespace dayvane::help {
namespace {

PageLayout PlainLayout() {
  PageLayout layout;
  layout.font = L"Tahoma";
  layout.measure = [](const std::wstring& text, bool /*isBold*/) { return 6 * static_cast<int>(text.size()); };
  return layout;
}

std::string RichTextOf(const std::string& body) {
  return MakePage("Title", ReadMarkup(body), PlainLayout()).richText;
}

bool Holds(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

/// The words after "\cellx" of the first row.
std::vector<int> CellEnds(const std::string& richText) {
  std::vector<int> ends;
  const auto rowEnd = richText.find('\n', richText.find("\\trowd"));
  for (auto at = richText.find("\\cellx"); at < rowEnd; at = richText.find("\\cellx", at + 1))
    ends.push_back(std::atoi(richText.c_str() + at + 6));
  return ends;
}

/// A PNG of 2 by 2 pixels: red, green; blue, and one that cannot be seen.
std::string Squares() {
  const std::string hex =
      "89504e470d0a1a0a0000000d494844520000000200000002080600000072b60d24000000134944415478da63f8cfc0f0"
      "1f0c8134886000003fd205fb7fe66a2b0000000049454e44ae426082";
  std::string bytes;
  for (std::size_t at = 0; at < hex.size(); at += 2)
    bytes += static_cast<char>(std::stoi(hex.substr(at, 2), nullptr, 16));
  return bytes;
}

const std::string kSquares = Squares();

TEST(HelpPage, ATitleIsTextAndNotMarkup) {
  const std::string page = MakePage("Tom {\\b} <b>Jerry</b>", {}, PlainLayout()).richText;
  EXPECT_TRUE(Holds(page, "Tom \\{\\\\b\\} <b>Jerry</b>"));
}

TEST(HelpPage, EveryLanguageIsWrittenInAscii) {
  const std::string page = RichTextOf("<p>Ωmega 文 \U0001F600</p>");
  EXPECT_TRUE(Holds(page, "\\u937?mega \\u25991? \\u-10179?\\u-8704?"));
}

TEST(HelpPage, LinksAreToldFromTopToBottom) {
  const Page page = MakePage("T", ReadMarkup("<p><a href=\"b\">Two</a> <a href=\"a\">One</a></p>"), PlainLayout());
  ASSERT_EQ(page.links.size(), 2U);
  EXPECT_EQ(page.links[0].text, L"Two");
  EXPECT_EQ(page.links[0].topic, "b");
}

TEST(HelpPage, LengthsAreThoseOfTheScreen) {
  PageLayout layout = PlainLayout();
  layout.scale = 1.5;
  const std::string page = MakePage("T", ReadMarkup("<p>x</p>"), layout).richText;
  EXPECT_TRUE(Holds(page, "\\fs27 x"));
  EXPECT_TRUE(Holds(page, "\\sb135\\sa135"));
}

TEST(HelpPage, AColumnIsAsWideAsItsTexts) {
  const std::vector<int> ends = CellEnds(RichTextOf("<table><tr><td>123456</td><td>1234567890</td></tr></table>"));
  ASSERT_EQ(ends.size(), 2U);
  EXPECT_EQ(ends[0], (36 + 2 + 16) * 15);
  EXPECT_EQ(ends[1], (36 + 2 + 16 + 60 + 2 + 16) * 15);
}

TEST(HelpPage, ATableIsNoWiderThanThePage) {
  std::string words;
  for (int word = 0; word < 200; word++) words += "word ";
  const std::vector<int> ends = CellEnds(RichTextOf("<table><tr><td>A</td><td>" + words + "</td></tr></table>"));
  EXPECT_LE(ends.back(), 640 * 15);
  EXPECT_GT(ends.back(), 630 * 15);
}

TEST(HelpPage, APictureThatCannotBeDrawnIsToldInWords) {
  EXPECT_TRUE(Holds(RichTextOf(R"(<p><img src="no.png" width="9" height="9" alt="The gate"/></p>)"), "The gate"));
}

TEST(HelpPage, APictureIsDrawnInTheSizeOfThePageForTheDotsOfTheScreen) {
  const std::string size = std::to_string(kSquares.size());
  const HelpFile file = HelpFile::Parse("Dayvane help 1\ntopic 2 home\nA\n\npicture " + size + " s.png\n" + kSquares +
                                        "\ncontents 4\nhome\nend\n");
  Piece piece;
  piece.picture = "s.png";
  piece.width = 10;
  piece.height = 20;
  EXPECT_TRUE(PagePictures(&file, 144, 1.5)
                  .RichText(piece, 0)
                  .starts_with("{\\pict\\dibitmap0\\picw15\\pich30\\picwgoal225\\pichgoal450 "));
  piece.picture = "other.png";
  EXPECT_EQ(PagePictures(&file, 144, 1.5).RichText(piece, 0), "");
}

TEST(HelpPage, WhatIsNoPictureIsNotDrawn) {
  EXPECT_FALSE(DecodePicture(""));
  EXPECT_FALSE(DecodePicture("<svg/>"));
  for (std::size_t size = 0; size < kSquares.size(); size++) DecodePicture(kSquares.substr(0, size));
}

TEST(HelpPage, APictureIsDecodedToItsPixels) {
  const std::optional<Picture> picture = DecodePicture(kSquares);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->pixels, (std::vector<std::uint32_t>{0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0}));
}

TEST(HelpPage, ASmallerPictureIsTheMeanOfALargerOne) {
  const Picture large{2, 2, {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0x00000000}};
  const Picture small = Drawn(large, 1, 1, RGB(255, 255, 255));
  EXPECT_EQ(small.pixels, std::vector<std::uint32_t>{0xFF7F7F7F});
  EXPECT_EQ(Drawn(large, 4, 4, RGB(1, 2, 3)).pixels.back(), 0xFF010203U);
}

TEST(HelpPage, InHighContrastThereAreNoColoursOfItsOwn) {
  const HelpColours colours = ColoursOf(RGB(0, 0, 0), RGB(255, 255, 0), true);
  EXPECT_EQ(colours.accent, RGB(255, 255, 0));
  EXPECT_EQ(colours.faint, RGB(255, 255, 0));
  EXPECT_EQ(colours.shade, RGB(0, 0, 0));
}

TEST(HelpPage, TitlesAndLinksCanBeReadOnADarkPage) {
  const HelpColours colours = ColoursOf(RGB(32, 32, 32), RGB(240, 240, 240), false);
  EXPECT_GT(GetGValue(colours.accent), 128);
  EXPECT_GT(GetGValue(colours.link) + GetRValue(colours.link), 200);
}

TEST(ColumnWidths, WhatFitsIsNotBroken) {
  EXPECT_EQ(ColumnWidths({{10, 30}, {20, 50}}, 100), (std::vector<int>{30, 50}));
}

TEST(ColumnWidths, LongTextsGiveWayToShortOnes) {
  EXPECT_EQ(ColumnWidths({{30, 30}, {20, 500}}, 100), (std::vector<int>{30, 70}));
}

TEST(ColumnWidths, WordsTooLongForThePageAreCutInTheSameMeasure) {
  EXPECT_EQ(ColumnWidths({{100, 100}, {300, 300}}, 100), (std::vector<int>{25, 75}));
  EXPECT_EQ(ColumnWidths({{100, 100}}, -5), (std::vector<int>{1}));
  EXPECT_EQ(ColumnWidths({}, 100), (std::vector<int>{}));
}

TEST(HelpHistory, AnotherPageForgetsWhatWasAhead) {
  HelpHistory history;
  for (const char* topic : {"a", "b", "c"}) history.Go(topic);
  history.Back();
  history.Back();
  history.Go("d");
  EXPECT_FALSE(history.CanGoForward());
  history.Back();
  EXPECT_EQ(history.Current().topic, "a");
  EXPECT_FALSE(history.CanGoBack());
}

TEST(HelpHistory, ThePageThatIsShownIsNoOther) {
  HelpHistory history;
  history.Go("a");
  history.Go("a");
  EXPECT_FALSE(history.CanGoBack());
}

}  // namespace
}  // namespace dayvane::help
