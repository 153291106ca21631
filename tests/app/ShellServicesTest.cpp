// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "app/ShellServices.h"
#include "base/Error.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

using testing::TestDesktop;

class ShellServicesTest : public ::testing::Test {
 protected:
  TestDesktop desktop;
  ShellServices shell{desktop.desktop, desktop.Folder()};
};

TEST_F(ShellServicesTest, APathIsSplitIntoFolderNameAndExtension) {
  const PathParts parts = shell.SplitPath("Z:\\home\\ana\\Report.final.odt");
  EXPECT_EQ(parts.folder, "Z:\\home\\ana");
  EXPECT_EQ(parts.fileName, "Report.final.odt");
  EXPECT_EQ(parts.extension, "odt");
}

TEST_F(ShellServicesTest, FolderAndFileNameMakeThePathAgainInADrivesRootToo) {
  EXPECT_EQ(shell.SplitPath("C:\\Setup.exe").folder, "C:");
}

TEST_F(ShellServicesTest, ABareNameHasNoFolder) {
  EXPECT_EQ(shell.SplitPath("Makefile").folder, "");
  EXPECT_EQ(shell.SplitPath("Makefile").extension, "");
}

TEST_F(ShellServicesTest, TheRecentFolderIsSpecialFolderEight) {
  EXPECT_EQ(shell.SpecialFolderPath(8), desktop.shell.recentFolder);
  EXPECT_THROW(shell.SpecialFolderPath(7), Error);
}

TEST_F(ShellServicesTest, AShortDateIsSplitIntoItsNumbers) {
  const DateParts parts = shell.SplitDate("11/21/2026");
  EXPECT_EQ(parts.month, 11);
  EXPECT_EQ(parts.day, 21);
  EXPECT_EQ(parts.year, 2026);
}

TEST_F(ShellServicesTest, ACreatedShortcutReadsBackWithANormalWindowAndNoArguments) {
  const std::string path = desktop.Folder() + "\\App.exe.lnk";
  shell.CreateShortcut(path, "D:\\App\\app.exe", "D:\\App\\app.exe");
  const platform::ShellLink link = shell.ReadShortcut(path).link;
  EXPECT_EQ(link.target, "D:\\App\\app.exe");
  EXPECT_EQ(link.workingDirectory, "D:\\App\\app.exe");
  EXPECT_EQ(link.arguments, "");
  EXPECT_EQ(link.showCommand, 1);
}

TEST_F(ShellServicesTest, AShortcutLeadsToAProgramWhenTheProgramIsItsWorkingFolderToo) {
  EXPECT_TRUE(LeadsToProgram({"Z:\\bin\\app", "Z:\\bin\\app", "", "", 0, 1}));
  EXPECT_FALSE(LeadsToProgram({"Z:\\home\\app", "", "", "", 0, 1}));
  EXPECT_FALSE(LeadsToProgram({"Z:\\home\\app", "Z:\\home", "", "", 0, 1}));
  EXPECT_FALSE(LeadsToProgram({"Z:\\home", "Z:\\home", "", "", 0, 1, true})) << "a folder";
  EXPECT_FALSE(LeadsToProgram({}));
}

TEST_F(ShellServicesTest, NumericFieldsLetDigitsAndBackspaceThrough) {
  for (const int key : {int{'0'}, int{'5'}, int{'9'}, 8}) EXPECT_TRUE(ShellServices::IsNumericKey(key)) << key;
  for (const int key : {int{'a'}, int{'-'}, int{'.'}, int{' '}, int{'/'}, int{':'}, 13})
    EXPECT_FALSE(ShellServices::IsNumericKey(key)) << key;
}

TEST_F(ShellServicesTest, NumericFieldsLetSelectingCopyingPastingCuttingAndUndoingThrough) {
  for (const char letter : {'A', 'C', 'V', 'X', 'Z'})
    EXPECT_TRUE(ShellServices::IsNumericKey(letter - '@')) << "Ctrl+" << letter;
  EXPECT_FALSE(ShellServices::IsNumericKey('B' - '@'));
}

TEST_F(ShellServicesTest, TheLargerOfTwoNumbers) {
  EXPECT_EQ(ShellServices::LargerOf(-30, 0), 0);
  EXPECT_EQ(ShellServices::LargerOf(7, 3), 7);
}

TEST_F(ShellServicesTest, TheDefaultWorkingFolderIsTheProgramFolder) {
  EXPECT_EQ(shell.DefaultWorkingFolder(), desktop.Folder());
}

}  // namespace
}  // namespace dayvane
