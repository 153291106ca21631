// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "linux/files/XdgFolders.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::xdg {
namespace {

using dayvane::testing::TemporaryFolder;
namespace fs = std::filesystem;

Environment Ana() {
  Environment environment;
  environment.home = "/home/ana";
  return environment;
}

TEST(XdgFolders, AreBelowTheHomeFolderByDefault) {
  EXPECT_EQ(DataFolder(Ana()), "/home/ana/.local/share");
  EXPECT_EQ(ConfigFolder(Ana()), "/home/ana/.config");
  EXPECT_EQ(CacheFolder(Ana()), "/home/ana/.cache");
}

TEST(XdgFolders, TheRuntimeFolderIsWhereSystemsPutItUnlessTheSessionSays) {
  Environment environment = Ana();
  EXPECT_TRUE(RuntimeFolder(environment).starts_with("/run/user/"));
  environment.runtimeFolder = "/sessions/7/";
  EXPECT_EQ(RuntimeFolder(environment), "/sessions/7");
}

TEST(XdgFolders, AreWhereTheUserSays) {
  Environment environment = Ana();
  environment.dataHome = "/data/ana/";
  environment.configHome = "/etc/ana";
  environment.cacheHome = "/fast/ana";
  EXPECT_EQ(DataFolder(environment), "/data/ana");
  EXPECT_EQ(ConfigFolder(environment), "/etc/ana");
  EXPECT_EQ(CacheFolder(environment), "/fast/ana");
}

TEST(XdgFolders, ARelativePathIsIgnored) {
  Environment environment = Ana();
  environment.dataHome = "data";
  environment.configHome = "./config";
  EXPECT_EQ(DataFolder(environment), "/home/ana/.local/share");
  EXPECT_EQ(ConfigFolder(environment), "/home/ana/.config");
}

TEST(XdgFolders, TheProcessKnowsAHomeFolderEvenWithoutBeingTold) {
  const std::string told = std::getenv("HOME");
  unsetenv("HOME");
  EXPECT_TRUE(Environment::OfProcess().home.starts_with('/'));
  setenv("HOME", "relative", 1);
  EXPECT_TRUE(Environment::OfProcess().home.starts_with('/'));
  setenv("HOME", told.c_str(), 1);
  EXPECT_EQ(Environment::OfProcess().home, told);
}

TEST(XdgFolders, MissingFoldersAreMadeForTheUserAlone) {
  const TemporaryFolder folder;
  MakeFolder(folder / "a/b");
  EXPECT_EQ(fs::status(folder / "a").permissions(), fs::perms::owner_all);
  EXPECT_EQ(fs::status(folder / "a/b").permissions(), fs::perms::owner_all);
}

TEST(XdgFolders, AFolderThatIsThereStaysAsItIs) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "a");
  fs::permissions(folder / "a", fs::perms(0755));
  MakeFolder(folder / "a");
  EXPECT_EQ(fs::status(folder / "a").permissions(), fs::perms(0755));
}

TEST(XdgFolders, AFileInTheWayIsAnErrorThatNamesIt) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("a", "");
  try {
    MakeFolder(file);
    FAIL() << "nothing was reported";
  } catch (const Error& error) {
    EXPECT_EQ(error.Path(), file);
  }
  EXPECT_THROW(MakeFolder(file + "/b"), Error);
}

}  // namespace
}  // namespace dayvane::xdg
