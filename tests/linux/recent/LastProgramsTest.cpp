// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "linux/recent/LastPrograms.h"

namespace dayvane::recent {
namespace {

TEST(LastPrograms, AnOpeningOfBeforeDoesNotMakeItsProgramTheLast) {
  LastPrograms programs;
  programs.Note({"/a", 2, "Letters", "x/letter"});
  programs.Note({"/b", 1, "Paint", "x/letter"});
  EXPECT_EQ(programs.Find("x/letter"), "Letters");
}

TEST(LastPrograms, AProgramThatNobodyNamesIsNone) {
  LastPrograms programs;
  programs.Note({"/a", 1, "", "x/letter"});
  EXPECT_EQ(programs.Find("x/letter"), std::nullopt);
}

TEST(LastPrograms, ATypeThatNobodyKnowsHasNoProgram) {
  LastPrograms programs;
  programs.Note({"/a", 1, "Letters", ""});
  EXPECT_EQ(programs.Find(""), std::nullopt);
}

TEST(LastPrograms, AStrangeListDoesNotFillTheMemoryWithTypes) {
  LastPrograms programs;
  for (int type = 0; type < 2000; ++type) programs.Note({"/a", 1, "Letters", "x/" + std::to_string(type)});
  EXPECT_EQ(programs.All().size(), 1000U);
  programs.Note({"/a", 2, "Paint", "x/7"});
  EXPECT_EQ(programs.Find("x/7"), "Paint") << "what is known goes on";
}

}  // namespace
}  // namespace dayvane::recent
