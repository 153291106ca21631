// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <map>
#include <optional>
#include <regex>

#include "tests/architecture/SourceTree.h"

namespace dayvane::testing {
namespace {

using ::testing::IsEmpty;

constexpr int kShellFloor = 8;
constexpr int kDesktopFloor = 9;

/// The rooms of src/ from the bottom up. What the program asks of a desktop stands low, the desktops stand on top.
const std::map<std::string, int> kFloors{
    {"base", 0},
    {"resources", 0},
    {"platform", 1},
    {"controls", 2},
    {"help", 3},
    {"links", 3},
    {"app", 4},
    {"fs", 5},
    {"repository", 6},
    {"settings", 6},
    {"views", 7},
    {"capture", 7},
    {"shell", kShellFloor},
    {"linux", kDesktopFloor},
    {"windows", kDesktopFloor},
};

/// A header of the C++ library is one lower-case word; those of C, of systems and of Qt have a dot, a slash or a Q.
bool IsStandardHeader(const std::string& name) {
  return std::all_of(name.begin(), name.end(), [](char c) { return (c >= 'a' && c <= 'z') || c == '_'; });
}

std::string RoomOf(const std::string& path) {
  return path.substr(0, path.find('/'));
}

/// The floor a file of src/ stands on. The main window's procedures lie in the rooms of their concern but belong to
/// its class, so they stand where FMain.h does.
std::optional<int> FloorOf(const std::string& file) {
  static const std::regex mainWindow(R"(/FMain[^/]*\.cpp$)");
  const auto floor = kFloors.find(RoomOf(file));
  if (floor == kFloors.end()) return std::nullopt;
  if (floor->second < kShellFloor && std::regex_search(file, mainWindow)) return kShellFloor;
  return floor->second;
}

/// Why the file may not have this include; empty when it may.
std::string Objection(const std::string& file, const Include& include) {
  const std::optional<int> floor = FloorOf(file);
  if (!floor) return file + " lies in no room";
  const bool desktop = *floor == kDesktopFloor;
  if (include.angled)
    return desktop || IsStandardHeader(include.name)
               ? ""
               : file + " includes <" + include.name + ">, which only a desktop's folder may";
  const std::optional<int> other = FloorOf(include.name);
  if (!other) return desktop ? "" : file + " includes \"" + include.name + "\", which is not named from src/";
  if (*other > *floor) return file + " includes " + include.name + " of a floor above";
  if (*other == kDesktopFloor && RoomOf(file) != RoomOf(include.name))
    return file + " includes " + include.name + " of another desktop";
  return "";
}

/// What of tests/ is about one system: its folder, the installed program's tests, and what stands behind
/// tests/support/System.h.
bool IsTestOfOneSystem(const std::string& test) {
  static const std::regex folders("^(linux|windows|faults|fuzz|session|support/linux|support/windows)/");
  return std::regex_search(test, folders);
}

/// Why the file of tests/ may not have this include; empty when it may.
std::string TestObjection(const std::string& test, const Include& include) {
  static const std::regex googleTest("^g(test|mock)/");
  static const std::regex system("^(tests/)?(linux|windows)/|^tests/support/(linux|windows)/");
  if (IsTestOfOneSystem(test)) return "";
  const bool isFine = include.angled ? IsStandardHeader(include.name) || std::regex_search(include.name, googleTest)
                                     : !std::regex_search(include.name, system);
  return isFine ? "" : test + " includes " + include.name + ", which not every system has";
}

TEST(Floors, NoFileKnowsAFloorAboveItsOwn) {
  std::vector<std::string> objections;
  for (const std::string& file : FilesBelow("src", {".h", ".cpp"}))
    for (const Include& include : IncludesIn(ProjectFile("src/" + file)))
      if (const std::string objection = Objection(file, include); !objection.empty()) objections.push_back(objection);
  EXPECT_THAT(objections, IsEmpty());
}

TEST(Floors, OnlyADesktopsFolderAsksWhichSystemItIsOn) {
  static const std::regex question(
      R"(#\s*(if|ifdef|ifndef|elif)\b.*(WIN32|WIN64|_MSC_VER|__MINGW|linux|unix|APPLE|Q_OS_|__GLIBC|ANDROID|BSD))");
  std::vector<std::string> files;
  for (const std::string& file : FilesBelow("src", {".h", ".cpp"}))
    if (FloorOf(file) != kDesktopFloor && std::regex_search(ProjectFile("src/" + file), question))
      files.push_back(file);
  EXPECT_THAT(files, IsEmpty());
}

TEST(Floors, AFileWithAHeaderOfItsOwnIncludesItFirstSoThatEveryHeaderCompilesAlone) {
  std::vector<std::string> files;
  for (const std::string& header : FilesBelow("src", {".h"})) {
    const std::string source = header.substr(0, header.size() - 2) + ".cpp";
    if (!std::filesystem::exists(DAYVANE_SOURCE_FOLDER "/src/" + source)) continue;
    const std::vector<Include> includes = IncludesIn(ProjectFile("src/" + source));
    if (includes.empty() || includes[0].name != header) files.push_back(source);
  }
  EXPECT_THAT(files, IsEmpty());
}

TEST(Floors, BothFormsOfAnIncludeAreRead) {
  const std::vector<Include> includes = IncludesIn("#pragma once\n#include <string>\n  # include \"app/Date.h\"\n//\n");
  ASSERT_EQ(includes.size(), 2U);
  EXPECT_TRUE(includes[0].angled);
  EXPECT_EQ(includes[1].name, "app/Date.h");
}

TEST(Floors, AFloorAboveIsRefusedAndOnesOwnIsNot) {
  EXPECT_NE(Objection("capture/CShortcut.h", {"shell/FMain.h"}), "");
  EXPECT_NE(Objection("base/Text.cpp", {"app/Date.h"}), "");
  EXPECT_EQ(Objection("settings/COptions.cpp", {"repository/CRepository.h"}), "");
  EXPECT_EQ(Objection("views/CDaily.cpp", {"app/Date.h"}), "");
}

TEST(Floors, ThePartsOfTheMainWindowStandWhereItDoes) {
  EXPECT_EQ(Objection("capture/FMainCapture.cpp", {"shell/FMain.h"}), "");
  EXPECT_NE(Objection("capture/FMainCapture.cpp", {"linux/App.h"}), "");
  EXPECT_NE(Objection("capture/FMainRows.h", {"shell/FMain.h"}), "");
}

TEST(Floors, OnlyADesktopsFolderMayUseItsLibraries) {
  EXPECT_NE(Objection("views/CDaily.cpp", {"QWidget", true}), "");
  EXPECT_NE(Objection("app/MDayvane.cpp", {"unistd.h", true}), "");
  EXPECT_EQ(Objection("linux/main.cpp", {"QWidget", true}), "");
}

TEST(Floors, OneDesktopKnowsNothingOfAnother) {
  EXPECT_NE(Objection("windows/main.cpp", {"linux/App.h"}), "");
  EXPECT_EQ(Objection("linux/main.cpp", {"linux/App.h"}), "");
}

TEST(Floors, AnIncludeIsNamedFromTheTopOfTheSources) {
  EXPECT_NE(Objection("app/Date.cpp", {"Date.h"}), "");
}

TEST(Floors, TheProgramsTestsRunOnAnySystem) {
  std::vector<std::string> objections;
  for (const std::string& test : FilesBelow("tests", {".h", ".cpp"}))
    for (const Include& include : IncludesIn(ProjectFile("tests/" + test)))
      if (const std::string objection = TestObjection(test, include); !objection.empty())
        objections.push_back(objection);
  EXPECT_THAT(objections, IsEmpty());
}

TEST(Floors, OnlyATestOfOneSystemKnowsWhatThatSystemHas) {
  EXPECT_NE(TestObjection("app/LogsTest.cpp", {"sys/stat.h", true}), "");
  EXPECT_NE(TestObjection("app/LogsTest.cpp", {"QWidget", true}), "");
  EXPECT_NE(TestObjection("fs/DirectoryWalkerTest.cpp", {"linux/LinuxFileSystem.h"}), "");
  EXPECT_NE(TestObjection("views/CDailyTest.cpp", {"tests/linux/disk/FullDisk.h"}), "");
  EXPECT_NE(TestObjection("support/TestFiles.h", {"windows/WindowsFileSystem.h"}), "");
  EXPECT_EQ(TestObjection("views/CDailyTest.cpp", {"gmock/gmock.h", true}), "");
  EXPECT_EQ(TestObjection("linux/disk/FullDisk.h", {"sys/resource.h", true}), "");
  EXPECT_EQ(TestObjection("support/linux/System.cpp", {"linux/LinuxFileSystem.h"}), "");
}

}  // namespace
}  // namespace dayvane::testing
