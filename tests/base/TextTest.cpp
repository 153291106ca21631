#include <gtest/gtest.h>

#include "base/Text.h"

namespace dayvane::text {
namespace {

TEST(Text, TrimTakesBlanksFromBothEndsOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("   "), "");
}

TEST(Text, CaseFoldsBeyondAscii) {
  EXPECT_EQ(ToLower("ÄRGER Ω.TXT"), "ärger ω.txt");
  EXPECT_EQ(ToUpper("привет"), "ПРИВЕТ");
}

TEST(Text, CaseFoldingKeepsBytesThatAreNoUtf8) {
  EXPECT_EQ(ToUpper("a\xFF\xFE b"), "A\xFF\xFE B");
}

TEST(Text, ComparisonIgnoresCase) {
  EXPECT_EQ(CompareIgnoringCase("Report", "rEPORT"), 0);
  EXPECT_LT(CompareIgnoringCase("alpha", "Beta"), 0);
  EXPECT_LT(CompareIgnoringCase("über", "ÜBER a"), 0);
}

TEST(Text, AnEndingIsFoundWhateverItsCase) {
  EXPECT_TRUE(EndsWithIgnoringCase("Report.odt.LNK", ".lnk"));
  EXPECT_FALSE(EndsWithIgnoringCase("lnk", ".lnk"));
}

TEST(Text, ANumberThatDoesNotFitThirtyTwoBitsIsNone) {
  EXPECT_EQ(ToInt32(" -17 "), -17);
  EXPECT_EQ(ToInt32("2147483647"), 2147483647);
  EXPECT_EQ(ToInt32("2147483648"), std::nullopt);
  EXPECT_EQ(ToInt32("12x"), std::nullopt);
  EXPECT_EQ(ToInt32(""), std::nullopt);
}

TEST(Text, PaddingAddsLeadingZeros) {
  EXPECT_EQ(Padded(7, 2), "07");
  EXPECT_EQ(Padded(1998, 2), "1998");
}

TEST(Text, APatternMatchesWithoutRegardToCase) {
  EXPECT_TRUE(MatchesPattern("Report.LNK", "*.lnk"));
  EXPECT_FALSE(MatchesPattern("Report.lnk.bak", "*.lnk"));
  EXPECT_TRUE(MatchesPattern("aab.lnk", "*ab.lnk"));
}

TEST(Text, StarDotStarMatchesANameWithoutADot) {
  EXPECT_TRUE(MatchesPattern("Makefile", "*.*"));
}

}  // namespace
}  // namespace dayvane::text
