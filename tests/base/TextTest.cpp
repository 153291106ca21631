// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/Text.h"
#include "tests/support/Random.h"

namespace dayvane::text {
namespace {

/// What a pattern means, told the slow way: "*" stands for nothing, or for one character and a "*" again.
bool FitsSlowly(std::string_view name, std::string_view pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern[0] == '*')
    return FitsSlowly(name, pattern.substr(1)) || (!name.empty() && FitsSlowly(name.substr(1), pattern));
  if (name.empty() || (pattern[0] != '?' && ToLower(pattern.substr(0, 1)) != ToLower(name.substr(0, 1)))) return false;
  return FitsSlowly(name.substr(1), pattern.substr(1));
}

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
  EXPECT_TRUE(EndsWithIgnoringCase(".Lnk", ".lnk"));
  EXPECT_FALSE(EndsWithIgnoringCase("lnk", ".lnk"));
}

TEST(Text, ANumberThatDoesNotFitThirtyTwoBitsIsNone) {
  EXPECT_EQ(ToInt32(" -17 "), -17);
  EXPECT_EQ(ToInt32("2147483647"), 2147483647);
  EXPECT_EQ(ToInt32("2147483648"), std::nullopt);
  EXPECT_EQ(ToInt32("12x"), std::nullopt);
  EXPECT_EQ(ToInt32(""), std::nullopt);
}

TEST(Text, ANumberMayHaveASignButNothingElseBesideItsDigits) {
  EXPECT_EQ(ToInt32("+17"), 17);
  for (const char* text : {"+", "-", "1 7", "0x11", "1.0"}) EXPECT_EQ(ToInt32(text), std::nullopt) << text;
}

TEST(Text, OnlyDigitsAreNumericAndThereMustBeSome) {
  EXPECT_TRUE(IsNumeric("0123456789"));
  for (const char* text : {"", "/", ":", "-1", "1 ", "x"}) EXPECT_FALSE(IsNumeric(text)) << text;
}

TEST(Text, ATextComesBeforeTheLongerOneThatBeginsWithIt) {
  EXPECT_EQ(CompareIgnoringCase("Report", "report 2"), -1);
  EXPECT_EQ(CompareIgnoringCase("report 2", "Report"), 1);
  EXPECT_EQ(CompareIgnoringCase("\u00e4", "\u00c4"), 0);
  EXPECT_EQ(CompareIgnoringCase("\u00e4b", "\u00c4a"), 1);
}

TEST(Text, PaddingAddsLeadingZeros) {
  EXPECT_EQ(Padded(7, 2), "07");
  EXPECT_EQ(Padded(10, 2), "10");
  EXPECT_EQ(Padded(1998, 2), "1998");
  EXPECT_EQ(Padded(-7, 4), "-007");
}

TEST(Text, APatternMatchesWithoutRegardToCase) {
  EXPECT_TRUE(MatchesPattern("Report.LNK", "*.lnk"));
  EXPECT_FALSE(MatchesPattern("Report.lnk.bak", "*.lnk"));
  EXPECT_TRUE(MatchesPattern("aab.lnk", "*ab.lnk"));
}

TEST(Text, APatternThatEndsBeforeTheNameOrAfterItDoesNotFit) {
  EXPECT_FALSE(MatchesPattern("Report.lnk", "Report"));
  EXPECT_FALSE(MatchesPattern("Report", "Report.lnk"));
  EXPECT_TRUE(MatchesPattern("Report", "Report**"));
}

TEST(Text, PatternsFitWhatTheirStarsAndQuestionMarksMean) {
  dayvane::testing::Random random(1998);
  for (int i = 0; i < 20000; ++i) {
    const std::string pattern = random.Text("abB.**?", 7);
    const std::string name = random.Text("aAb.", 7);
    if (pattern == "*.*") continue;
    EXPECT_EQ(MatchesPattern(name, pattern), FitsSlowly(name, pattern)) << name << " and " << pattern;
  }
}

TEST(Text, StarDotStarMatchesANameWithoutADot) {
  EXPECT_TRUE(MatchesPattern("Makefile", "*.*"));
}

}  // namespace
}  // namespace dayvane::text
