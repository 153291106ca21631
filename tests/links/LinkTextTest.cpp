// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "links/LinkText.h"
#include "tests/links/LinkBuilder.h"

namespace dayvane::links {
namespace {

using testing::Utf16;
using testing::Utf8;

std::string FromUtf16(const std::u16string& text) {
  std::string utf8;
  AppendUtf16(utf8, Utf16(text));
  return utf8;
}

std::string FromAnsi(std::string_view ansi) {
  std::string utf8;
  AppendAnsi(utf8, ansi);
  return utf8;
}

TEST(LinkText, Utf16OfEveryLengthBecomesUtf8) {
  EXPECT_EQ(FromUtf16(u"a\u00e9\u6587\U0001F600"), Utf8(u8"a\u00e9\u6587\U0001F600"));
}

TEST(LinkText, AnUnpairedSurrogateBecomesTheReplacementCharacter) {
  EXPECT_EQ(FromUtf16({u'a', 0xD83D, u'b'}), Utf8(u8"a\uFFFDb"));
  EXPECT_EQ(FromUtf16({0xDE00, u'b'}), Utf8(u8"\uFFFDb"));
  EXPECT_EQ(FromUtf16({u'a', 0xD83D}), Utf8(u8"a\uFFFD"));
}

TEST(LinkText, AHighSurrogateBeforeAPairTakesNothingFromThePair) {
  EXPECT_EQ(FromUtf16({0xD83D, 0xD83D, 0xDE00}), Utf8(u8"\uFFFD\U0001F600"));
}

TEST(LinkText, TextEndsAtItsFirstNull) {
  EXPECT_EQ(FromUtf16({u'a', 0, u'b'}), "a");
  EXPECT_EQ(FromAnsi(std::string_view("a\0b", 3)), "a");
  EXPECT_EQ(ToUtf16(std::string_view("a\0b", 3)), Utf16(u"a"));
  EXPECT_EQ(ToAnsi(std::string_view("a\0b", 3), '?'), "a");
}

TEST(LinkText, AnOddByteAtTheEndOfUtf16IsLeftOut) {
  std::string utf8;
  AppendUtf16(utf8, std::string_view("a\0b", 3));
  EXPECT_EQ(utf8, "a");
}

TEST(LinkText, AnsiTextIsWindows1252) {
  EXPECT_EQ(FromAnsi("\x80 \xE9 \x9F"), Utf8(u8"\u20AC \u00E9 \u0178"));
}

TEST(LinkText, EveryAnsiByteComesBackAsItself) {
  for (int byte = 1; byte < 256; ++byte) {
    const std::string ansi(1, static_cast<char>(byte));
    EXPECT_EQ(ToAnsi(FromAnsi(ansi), '?'), ansi) << byte;
  }
}

TEST(LinkText, ACharacterOutsideTheCodePageHasAStandIn) {
  EXPECT_EQ(ToAnsi(Utf8(u8"a\u6587\U0001F600z"), '_'), "a__z");
}

TEST(LinkText, BytesThatAreNoUtf8BecomeTheReplacementCharacterEach) {
  EXPECT_EQ(ToUtf16("a\xFF\xC0\xAFz"), Utf16(u"a\uFFFD\uFFFD\uFFFDz"));
  EXPECT_EQ(ToUtf16("\xED\xA0\x80"), Utf16(u"\uFFFD\uFFFD\uFFFD")) << "a surrogate";
  EXPECT_EQ(ToUtf16("\xF4\x90\x80\x80"), Utf16(u"\uFFFD\uFFFD\uFFFD\uFFFD")) << "beyond Unicode";
  EXPECT_EQ(ToUtf16("\xE6\x96"), Utf16(u"\uFFFD\uFFFD")) << "cut short";
}

TEST(LinkText, EveryCodePointComesBackAsItself) {
  for (char32_t codePoint = 1; codePoint < 0x110000; codePoint += codePoint < 0x1000 ? 1 : 97) {
    if (codePoint >= 0xD800 && codePoint < 0xE000) continue;
    std::u16string wide;
    if (codePoint < 0x10000)
      wide = {static_cast<char16_t>(codePoint)};
    else
      wide = {static_cast<char16_t>(0xD7C0 + (codePoint >> 10U)), static_cast<char16_t>(0xDC00 + (codePoint & 0x3FFU))};
    ASSERT_EQ(ToUtf16(FromUtf16(wide)), Utf16(wide)) << static_cast<unsigned>(codePoint);
  }
}

}  // namespace
}  // namespace dayvane::links
