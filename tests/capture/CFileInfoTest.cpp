// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "capture/CFileInfo.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;

/// A shell that answers with a failure.
class FailingIcons : public testing::TestIcons {
 public:
  std::optional<platform::ShellFileInfo> FileInfo(const std::string& path, std::uint32_t attributes,
                                                  std::uint32_t flags) override {
    if (fails) throw Error(kDeviceIoError, "The shell is gone");
    return TestIcons::FileInfo(path, attributes, flags);
  }
  using TestIcons::FileInfo;

  bool fails = false;
};

class CFileInfoTest : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) const { return desktop.folder.Path() + "\\" + name; }
  static std::string NameOf(const std::optional<platform::Picture>& icon) {
    return icon ? icon->iconNames.at(0) : "none";
  }

  /// What the shell is asked while `act` runs.
  template <class Act>
  std::vector<std::string> Asked(Act&& act) {
    icons.asked.clear();
    act();
    return icons.asked;
  }

  testing::TestDesktop desktop;
  FailingIcons icons;
  const platform::Desktop withIcons{desktop.files,     desktop.shell, icons,         desktop.registry,
                                    desktop.windowing, desktop.help,  desktop.clock, desktop.dates};
  Application application{withIcons, desktop.Folder()};
  CFileInfo fileInfo{application};
};

TEST_F(CFileInfoTest, AFileIsAskedForByItsAttributesInsteadOfBeingOpened) {
  desktop.folder.Write("a.lnk", "");
  EXPECT_THAT(Asked([&] { fileInfo.SetItem(Path("a.lnk")); }), ElementsAre(Path("a.lnk") + "|32|610"));
  EXPECT_THAT(Asked([&] { fileInfo.SmallIcon(); }), ElementsAre(Path("a.lnk") + "|32|111"));
  EXPECT_THAT(Asked([&] { fileInfo.ShellIcon(); }), ElementsAre(Path("a.lnk") + "|32|114"));
}

TEST_F(CFileInfoTest, AFolderIsFoundWithOrWithoutItsTrailingBackslash) {
  for (const std::string& path : {Path("program"), Path("program\\")})
    EXPECT_THAT(Asked([&] { fileInfo.SetItem(path); }), ElementsAre(path + "|16|610"));
}

TEST_F(CFileInfoTest, ADriveRootIsDescribedWithoutASearch) {
  EXPECT_THAT(Asked([&] { fileInfo.SetItem("Z:\\"); }), ElementsAre("Z:\\|0|600"));
  EXPECT_THAT(Asked([&] { fileInfo.SmallIcon(); }), ElementsAre("Z:\\|0|101"));
  EXPECT_THAT(Asked([&] { fileInfo.ShellIcon(); }), ElementsAre("Z:\\|0|104"));
  EXPECT_THAT(Asked([&] { fileInfo.SetItem("Z:"); }), ElementsAre("Z:|0|600"));
}

TEST_F(CFileInfoTest, TheShortestPathInADriveIsSearchedFor) {
  EXPECT_THAT(Asked([&] { fileInfo.SetItem("Z:\\a"); }), ElementsAre("Z:\\a|0|610"));
  EXPECT_THAT(Asked([&] { fileInfo.SetItem("a"); }), ElementsAre("a|0|610"));
}

TEST_F(CFileInfoTest, ADriveRootForgetsTheAttributesOfTheItemBefore) {
  fileInfo.SetItem(Path("program"));
  EXPECT_THAT(Asked([&] { fileInfo.SetItem("Z:\\"); }), ElementsAre("Z:\\|0|600"));
}

TEST_F(CFileInfoTest, AShortcutThatWasRemovedStillHasAnIcon) {
  EXPECT_THAT(Asked([&] { fileInfo.SetItem(Path("gone.lnk")); }), ElementsAre(Path("gone.lnk") + "|0|610"));
  EXPECT_EQ(NameOf(fileInfo.SmallIcon()), "gone.lnk");
}

TEST_F(CFileInfoTest, AShortcutThatWasRemovedDoesNotTakeTheAttributesOfTheItemBefore) {
  fileInfo.SetItem(Path("program"));
  EXPECT_THAT(Asked([&] { fileInfo.SetItem(Path("gone.lnk")); }), ElementsAre(Path("gone.lnk") + "|0|610"));
  EXPECT_THAT(Asked([&] { fileInfo.SmallIcon(); }), ElementsAre(Path("gone.lnk") + "|0|111"));
}

TEST_F(CFileInfoTest, ASmallNumberIsASpecialFoldersAndItsIdentifierIsUsed) {
  EXPECT_THAT(Asked([&] { fileInfo.SetItem(std::uint64_t{8}); }), ElementsAre("1008|0|608"));
  EXPECT_THAT(Asked([&] { fileInfo.SmallIcon(); }), ElementsAre("1008|0|109"));
  EXPECT_THAT(Asked([&] { fileInfo.ShellIcon(); }), ElementsAre("1008|0|10c"));
}

TEST_F(CFileInfoTest, NumbersFromFiftyOnAreIdentifiers) {
  EXPECT_THAT(Asked([&] { fileInfo.SetItem(std::uint64_t{49}); }), ElementsAre("1049|0|608"));
  EXPECT_THAT(Asked([&] { fileInfo.SetItem(std::uint64_t{50}); }), ElementsAre("50|0|608"));
}

TEST_F(CFileInfoTest, AnIdentifierForgetsTheAttributesOfThePathBefore) {
  fileInfo.SetItem(Path("program"));
  fileInfo.SetItem(std::uint64_t{5000});
  EXPECT_THAT(Asked([&] { fileInfo.SmallIcon(); }), ElementsAre("5000|0|109"));
}

TEST_F(CFileInfoTest, AnItemThatTheShellDoesNotKnowLeavesTheOneBefore) {
  fileInfo.SetItem(Path("a.lnk"));
  fileInfo.SetItem(std::uint64_t{666});
  EXPECT_EQ(NameOf(fileInfo.SmallIcon()), "a.lnk");
}

TEST_F(CFileInfoTest, WithoutAnItemThereIsNoIcon) {
  fileInfo.SetItem(std::uint64_t{666});
  EXPECT_EQ(fileInfo.SmallIcon(), std::nullopt);
  EXPECT_EQ(fileInfo.ShellIcon(), std::nullopt);
}

TEST_F(CFileInfoTest, OnlyTheThreeFlagsOfAnOverlayPassThrough) {
  fileInfo.SetItem("Z:\\");
  EXPECT_THAT(Asked([&] { fileInfo.SmallIcon(0xFFFFFFFF); }), ElementsAre("Z:\\|0|18103"));
  EXPECT_THAT(Asked([&] { fileInfo.ShellIcon(0xFFFFFFFF); }), ElementsAre("Z:\\|0|18106"));
}

TEST_F(CFileInfoTest, AnErrorOfTheShellIsReportedAndGivesNoIcon) {
  fileInfo.SetItem(Path("a.lnk"));
  icons.fails = true;
  EXPECT_EQ(fileInfo.SmallIcon(), std::nullopt);
  EXPECT_EQ(fileInfo.ShellIcon(), std::nullopt);
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"), ElementsAre(::testing::StartsWith("CFileInfo.SmallIcon\t57\t"),
                                                            ::testing::StartsWith("CFileInfo.ShellIcon\t57\t")));
  EXPECT_EQ(desktop.windowing.messages.size(), 2U);
}

}  // namespace
}  // namespace dayvane
