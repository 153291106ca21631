// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/CaseMapping.h"

namespace dayvane::text {
namespace {

TEST(CaseMapping, LettersOfManyScriptsHaveTheirOtherCase) {
  struct Pair {
    char32_t upper, lower;
  };
  for (const auto& [upper, lower] : {Pair{U'A', U'a'},
                                     {U'Z', U'z'},
                                     {U'\u00C4', U'\u00E4'},
                                     {U'\u0178', U'\u00FF'},
                                     {U'\u012E', U'\u012F'},
                                     {U'\u0394', U'\u03B4'},
                                     {U'\u042F', U'\u044F'},
                                     {U'\u0531', U'\u0561'},
                                     {U'\u1E9E', U'\u00DF'},
                                     {U'\U0001E900', U'\U0001E922'}}) {
    EXPECT_EQ(SimpleLower(upper), lower);
    EXPECT_EQ(SimpleUpper(lower), upper == U'\u1E9E' ? lower : upper);
    EXPECT_EQ(SimpleUpper(upper), upper);
    EXPECT_EQ(SimpleLower(lower), lower);
  }
}

TEST(CaseMapping, WhatWouldBecomeTwoCharactersStaysAsItIs) {
  EXPECT_EQ(SimpleUpper(U'\u00DF'), U'\u00DF');
  EXPECT_EQ(SimpleUpper(U'\u0149'), U'\u0149');
}

TEST(CaseMapping, CharactersBetweenTheLettersStayAsTheyAre) {
  for (const char32_t other : {U'@', U'[', U'`', U'{', U'\u00D7', U'\u00F7', U'\u6587', U'\U0010FFFF'}) {
    EXPECT_EQ(SimpleUpper(other), other);
    EXPECT_EQ(SimpleLower(other), other);
  }
}

TEST(CaseMapping, LettersWhosePairsAlternateAreNotTakenForTheirNeighbours) {
  EXPECT_EQ(SimpleUpper(U'\u0100'), U'\u0100');
  EXPECT_EQ(SimpleUpper(U'\u0101'), U'\u0100');
  EXPECT_EQ(SimpleUpper(U'\u0138'), U'\u0138') << "has no capital letter";
  EXPECT_EQ(SimpleUpper(U'\u013A'), U'\u0139');
}

}  // namespace
}  // namespace dayvane::text
