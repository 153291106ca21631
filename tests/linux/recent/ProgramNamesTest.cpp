// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "linux/recent/ProgramNames.h"

namespace dayvane::recent {
namespace {

TEST(ProgramNames, AProgramIsKnownByAnyOfItsNames) {
  for (const char* name : {"okular", "Okular", "org.kde.okular", "org.kde.okular.desktop", "okularApplication_pdf"})
    EXPECT_EQ(PlainProgramName(name), "okular") << name;
  EXPECT_EQ(PlainProgramName("org.gnome.TextEditor"), "texteditor");
}

TEST(ProgramNames, ADotInANameThatIsNoIdCutsNothing) {
  for (const char* name : {"libreoffice 7.4", "gimp-2.10", "a..b", ".a.b", "the tool 1.2.3", "", "application_pdf"})
    EXPECT_EQ(PlainProgramName(name), name);
}

TEST(ProgramNames, AnUnknownProgramIsTheSameAsNoOther) {
  EXPECT_TRUE(IsSameProgram("org.kde.kate", "Kate"));
  EXPECT_FALSE(IsSameProgram("kate", "kwrite"));
  EXPECT_FALSE(IsSameProgram("", ""));
}

}  // namespace
}  // namespace dayvane::recent
