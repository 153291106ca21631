// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/Utf8.h"

namespace dayvane::utf8 {
namespace {

// One of every length: U+0061, U+00E9, U+6587, U+1F600.
constexpr const char* kEveryLength = "a\xC3\xA9\xE6\x96\x87\xF0\x9F\x98\x80";

TEST(Utf8, CodePointsOfEveryLengthAreRead) {
  std::string_view text = kEveryLength;
  for (const char32_t expected : {U'a', U'\u00e9', U'\u6587', U'\U0001F600'}) {
    const CodePoint first = First(text);
    EXPECT_EQ(first.value, expected);
    text.remove_prefix(first.length);
  }
  EXPECT_TRUE(text.empty());
}

TEST(Utf8, CodePointsOfEveryLengthAreWritten) {
  std::string text;
  for (const char32_t codePoint : {U'a', U'\u00e9', U'\u6587', U'\U0001F600'}) Append(text, codePoint);
  EXPECT_EQ(text, kEveryLength);
}

TEST(Utf8, EveryCodePointIsReadBackAsItIsWritten) {
  for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
    std::string text;
    Append(text, codePoint);
    const CodePoint read = First(text);
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    ASSERT_EQ(read.length, surrogate ? 0 : text.size()) << static_cast<unsigned>(codePoint);
    ASSERT_EQ(read.value, surrogate ? 0 : codePoint);
  }
}

TEST(Utf8, StrayOverlongSurrogateAndTooLargeSequencesAreNone) {
  for (const char* bytes : {"\x80", "\xC0\xAF", "\xC3", "\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80",
                            "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xFF"}) {
    EXPECT_EQ(First(bytes).length, 0U) << ::testing::PrintToString(std::string(bytes));
    EXPECT_FALSE(IsValid(bytes)) << ::testing::PrintToString(std::string(bytes));
  }
}

TEST(Utf8, ATextIsValidAsAWhole) {
  EXPECT_TRUE(IsValid(""));
  EXPECT_TRUE(IsValid(kEveryLength));
  EXPECT_FALSE(IsValid("a\xC3\xA9\xC3"));
}

TEST(Utf8, AnEmptyTextBeginsWithNothing) {
  EXPECT_EQ(First("").length, 0U);
}

}  // namespace
}  // namespace dayvane::utf8
