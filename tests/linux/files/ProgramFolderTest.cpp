// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "linux/files/ProgramFolder.h"
#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane {
namespace {

using dayvane::testing::TemporaryFolder;
using dayvane::testing::UnprivilegedUser;
namespace fs = std::filesystem;

xdg::Environment Ana() {
  xdg::Environment environment;
  environment.home = "/home/ana";
  return environment;
}

/// The folder that was configured, on a system where nothing was installed there.
constexpr const char* kNotInstalled = "/nowhere/share/dayvane";

void MakeResources(const std::string& folder) {
  fs::create_directories(folder);
  std::ofstream(folder + "/Dayvane.hlp") << "Dayvane help 1\nend\n";
}

TEST(ProgramFolder, APortableProgramKeepsEverythingBesideItself) {
  const TemporaryFolder folder;
  const ProgramFolders found = FindProgramFolders(folder / "dayvane", kNotInstalled, Ana());
  EXPECT_EQ(found.data, folder.Native());
  EXPECT_EQ(found.resources, folder.Native());
}

TEST(ProgramFolder, AnInstalledProgramKeepsItsDataWithTheUsers) {
  const TemporaryFolder prefix;
  fs::create_directories(prefix / "share/dayvane");
  const ProgramFolders found = FindProgramFolders(prefix / "bin/dayvane", kNotInstalled, Ana());
  EXPECT_EQ(found.data, "/home/ana/.local/share/dayvane");
  EXPECT_EQ(found.resources, prefix / "share/dayvane");
}

TEST(ProgramFolder, AFolderCalledBinAloneIsNoInstallation) {
  const TemporaryFolder folder;
  const ProgramFolders found = FindProgramFolders(folder / "bin/dayvane", kNotInstalled, Ana());
  EXPECT_EQ(found.data, folder / "bin");
  EXPECT_EQ(found.resources, folder / "bin");
}

TEST(ProgramFolder, TheSharedFolderAloneIsNoInstallation) {
  const TemporaryFolder folder;
  fs::create_directories(folder / "share/dayvane");
  EXPECT_EQ(FindProgramFolders(folder / "build/dayvane", kNotInstalled, Ana()).data, folder / "build");
}

TEST(ProgramFolder, AProgramThatADistributionKeepsElsewhereIsInstalledWhereItWasConfiguredToBe) {
  const TemporaryFolder root;
  MakeResources(root / "usr/share/dayvane");
  const ProgramFolders found =
      FindProgramFolders(root / "usr/libexec/dayvane/dayvane", root / "usr/share/dayvane", Ana());
  EXPECT_EQ(found.data, "/home/ana/.local/share/dayvane");
  EXPECT_EQ(found.resources, root / "usr/share/dayvane");
}

TEST(ProgramFolder, AFolderCalledBinWithoutItsSharedFolderIsInstalledWhereItWasConfiguredToBe) {
  const TemporaryFolder root;
  MakeResources(root / "usr/share/dayvane");
  const ProgramFolders found = FindProgramFolders(root / "bin/dayvane", root / "usr/share/dayvane", Ana());
  EXPECT_EQ(found.data, "/home/ana/.local/share/dayvane");
  EXPECT_EQ(found.resources, root / "usr/share/dayvane");
}

TEST(ProgramFolder, AProgramWithItsHelpBesideItIsPortableBesideAnInstallationToo) {
  const TemporaryFolder root;
  MakeResources(root / "usr/share/dayvane");
  MakeResources(root / "stick");
  const ProgramFolders found = FindProgramFolders(root / "stick/dayvane", root / "usr/share/dayvane", Ana());
  EXPECT_EQ(found.data, root / "stick");
  EXPECT_EQ(found.resources, root / "stick");
}

TEST(ProgramFolder, AProgramWithARecordBesideItIsPortableWithoutItsHelpToo) {
  const TemporaryFolder root;
  MakeResources(root / "usr/share/dayvane");
  fs::create_directories(root / "stick/Daily");
  const ProgramFolders found = FindProgramFolders(root / "stick/dayvane", root / "usr/share/dayvane", Ana());
  EXPECT_EQ(found.data, root / "stick");
}

TEST(ProgramFolder, AnInstallationInAnotherPrefixKeepsToItsOwnFolder) {
  const TemporaryFolder root;
  MakeResources(root / "usr/share/dayvane");
  MakeResources(root / "opt/share/dayvane");
  const ProgramFolders found = FindProgramFolders(root / "opt/bin/dayvane", root / "usr/share/dayvane", Ana());
  EXPECT_EQ(found.resources, root / "opt/share/dayvane");
}

TEST(ProgramFolder, AConfiguredFolderWithoutTheHelpIsNoInstallation) {
  const TemporaryFolder root;
  fs::create_directories(root / "usr/share/dayvane");
  const ProgramFolders found = FindProgramFolders(root / "stick/dayvane", root / "usr/share/dayvane", Ana());
  EXPECT_EQ(found.data, root / "stick");
}

TEST(ProgramFolder, IsMadeForTheUserAlone) {
  const TemporaryFolder folder;
  MakeDataFolder({folder / "share/dayvane", {}, {}});
  EXPECT_EQ(fs::status(folder / "share/dayvane").permissions(), fs::perms::owner_all);
}

TEST(ProgramFolder, ThatCannotBeMadeIsAnErrorWithPathAndReason) {
  const TemporaryFolder folder;
  fs::permissions(folder.Native(), fs::perms(0555));
  try {
    const UnprivilegedUser nobody;
    MakeDataFolder({folder / "dayvane", {}, {}});
    FAIL() << "nothing was reported";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), kPermissionDenied);
    EXPECT_EQ(error.Path(), folder / "dayvane");
    EXPECT_FALSE(error.Description().empty());
  }
  fs::permissions(folder.Native(), fs::perms::owner_all);
}

TEST(ProgramFolder, ThatCannotBeWrittenIsAnErrorWithPathAndReason) {
  const TemporaryFolder folder;
  fs::permissions(folder.Native(), fs::perms(0555));
  try {
    const UnprivilegedUser nobody;
    MakeDataFolder({folder.Native(), {}, {}});
    FAIL() << "nothing was reported";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), kPermissionDenied);
    EXPECT_EQ(error.Path(), folder.Native());
  }
  fs::permissions(folder.Native(), fs::perms::owner_all);
}

TEST(ProgramFolder, AnInstallationThatLostItsSharedFolderIsToldAsThat) {
  const TemporaryFolder prefix;
  fs::create_directory(prefix / "bin");
  for (const std::string& folder : {prefix.Native(), prefix / "bin"}) fs::permissions(folder, fs::perms(0555));
  try {
    const UnprivilegedUser nobody;
    MakeDataFolder(FindProgramFolders(prefix / "bin/dayvane", kNotInstalled, Ana()));
    FAIL() << "nothing was reported";
  } catch (const Error& error) {
    EXPECT_EQ(error.what(), "Dayvane is not completely installed. Its folder is missing: " + prefix / "share/dayvane");
  }
  fs::permissions(prefix.Native(), fs::perms::owner_all);
}

TEST(ProgramFolder, AProgramThatIsCarriedAboutMayLieInAFolderCalledBin) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "bin");

  EXPECT_NO_THROW(MakeDataFolder(FindProgramFolders(folder / "bin/dayvane", kNotInstalled, Ana())));
}

}  // namespace
}  // namespace dayvane
