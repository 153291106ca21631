// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "app/Application.h"
#include "resources/StringTable.h"

namespace dayvane {
namespace {

TEST(ProgramInfo, TheVersionIsItsThreeNumbersAfterTheWord) {
  ProgramInfo info;
  info.major = 1;
  info.minor = 0;
  info.revision = 12;
  EXPECT_EQ(info.VersionText(), "Version 1.0.12");
}

TEST(ProgramInfo, TheProgramsCommentsAreItsLegalNotice) {
  EXPECT_EQ(ThisProgram().title, "Dayvane");
  EXPECT_EQ(ThisProgram().comments, ResourceString(kLegalWarning));
}

}  // namespace
}  // namespace dayvane
