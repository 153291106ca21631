// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "tests/capture/CaptureFixture.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using testing::CaptureTest;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::ReadFile;
using testing::SetWritten;

TEST_F(CaptureTest, TheProgramThatOpensADocumentIsFiledBesideIt) {
  desktop.folder.Write("bin/writer", "");
  desktop.registry.AddClass(".ODT", "Text", "", "\"" + desktop.folder.Path() + "\\bin\\writer\" \"%1\"");
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  EXPECT_TRUE(fs::exists(Daily("2026/November/21/Writer.lnk")));
  EXPECT_FALSE(fs::exists(desktop.NativeRecent() + "/Writer.lnk"));
}

TEST_F(CaptureTest, ADocumentCalledLikeTheProgramOfAnotherKeepsItsPlaceAndItsCount) {
  UseProgram("Code");
  Load();
  const std::string shortcut = Open("2026-11-21 09:15:00", "Z:\\home\\ana\\Code");
  Tick();
  Open("2026-11-21 09:20:00");
  Tick();
  EXPECT_EQ(ReadFile(Daily("2026/November/21/Code.lnk")), ReadFile(shortcut));
  EXPECT_THAT(NamesIn("2026/November/21"), ElementsAre("Code (2).lnk", "Code.lnk", "Report.odt.lnk"));
  EXPECT_THAT(FavoritesText(), HasSubstr("1,#2026-11-21 09:15:00#"));
}

TEST_F(CaptureTest, ADocumentCalledLikeAProgramThatIsThereAlreadyIsCountedAndThatOneStays) {
  UseProgram("Code");
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  ASSERT_THAT(NamesIn("2026/November/21"), ElementsAre("Code.lnk", "Report.odt.lnk"));
  const std::string shortcut = Open("2026-11-21 09:20:00", "Z:\\home\\ana\\Code");
  Tick();
  EXPECT_EQ(ReadFile(Daily("2026/November/21/Code.lnk")), ReadFile(shortcut));
  EXPECT_EQ(ProgramIn("2026/November/21/Code (2).lnk"), desktop.folder.Path() + "\\bin\\Code");
  EXPECT_THAT(FavoritesText(), HasSubstr("1,#2026-11-21 09:20:00#"));
}

TEST_F(CaptureTest, ADocumentAndAProgramOfOneNameAreAtRestAfterTheyWereFiled) {
  UseProgram("Code");
  Load();
  Open("2026-11-21 09:15:00");
  Open("2026-11-21 09:20:00", "Z:\\home\\ana\\Code");
  Tick();
  const auto written = fs::last_write_time(Daily("2026/November/21/Code (2).lnk"));
  Open("2026-11-21 09:25:00", "Z:\\home\\ana\\Code");
  Tick();
  Tick();
  EXPECT_EQ(fs::last_write_time(Daily("2026/November/21/Code (2).lnk")), written);
  EXPECT_THAT(NamesIn("2026/November/21"), ElementsAre("Code (2).lnk", "Code.lnk", "Report.odt.lnk"));
  EXPECT_THAT(FavoritesText(), HasSubstr("1,#2026-11-21 09:20:00#"));
}

TEST_F(CaptureTest, AProgramThatWasOpenedFromTheListIsNotTakenForADocumentOfItsName) {
  UseProgram("Code");
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  fs::copy(Daily("2026/November/21/Code.lnk"), desktop.NativeRecent() + "/Code.lnk");
  SetWritten(desktop.NativeRecent() + "/Code.lnk", "2026-11-21 09:20:00");
  Tick();
  EXPECT_THAT(NamesIn("2026/November/21"), ElementsAre("Code.lnk", "Report.odt.lnk"));
  EXPECT_THAT(FavoritesText(), ::testing::Not(HasSubstr("Code")));
}

TEST_F(CaptureTest, AProgramsShortcutBehindALinkOutOfTheRepositoryIsNotMoved) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  UseProgram("Code");
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  const testing::TemporaryFolder outside;
  fs::rename(Daily("2026/November/21/Code.lnk"), outside / "Code.lnk");
  fs::remove_all(Daily("2026/November/21"));
  testing::MakeFolderLink(outside.Native(), Daily("2026/November/21"));
  Open("2026-11-21 09:20:00", "Z:\\home\\ana\\Code");
  Tick();
  EXPECT_EQ(std::distance(fs::directory_iterator(outside.Native()), fs::directory_iterator()), 1);
  EXPECT_TRUE(fs::exists(outside / "Code.lnk"));
}

}  // namespace
}  // namespace dayvane
