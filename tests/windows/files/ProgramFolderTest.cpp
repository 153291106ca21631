// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>

#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"
#include "windows/files/NativePath.h"
#include "windows/files/ProgramFolder.h"

namespace dayvane {
namespace {

using testing::TemporaryFolder;

TEST(WindowsProgramFolder, IsWhereTheProgramLies) {
  EXPECT_TRUE(std::filesystem::exists(testing::PathOf(ProgramFolder() + "\\dayvane_tests.exe"))) << ProgramFolder();
}

TEST(WindowsProgramFolder, MayBeOfAnyScriptAndDepth) {
  const TemporaryFolder folder;
  std::string deep = folder.Path();
  const auto files = testing::SystemFiles();
  for (const std::string& name : {std::string("\u0391\u03bb\u03c6\u03b1 \u6587\u66f8"), std::string(120, 'x'),
                                  std::string(120, 'y'), std::string(120, 'z')})
    files->CreateFolder(deep += "\\" + name);
  wchar_t system[MAX_PATH];
  GetSystemDirectoryW(system, MAX_PATH);
  files->Copy(files::FromNative(system).value() + "\\version.dll", deep + "\\carried.dll");
  const std::wstring native = files::ToNative(deep + "\\carried.dll").value();
  const std::unique_ptr<std::remove_pointer_t<HMODULE>, decltype(&FreeLibrary)> module(LoadLibraryW(native.c_str()),
                                                                                       &FreeLibrary);
  if (module == nullptr) GTEST_SKIP() << "this system loads no library from so deep";
  EXPECT_EQ(ProgramFolder(module.get()), deep);
}

TEST(WindowsProgramFolder, ThatCanBeWrittenIsLeftAsItWas) {
  const TemporaryFolder folder;
  EXPECT_TRUE(CanBeWritten(folder.Path()));
  EXPECT_TRUE(std::filesystem::is_empty(testing::PathOf(folder.Native())));
}

TEST(WindowsProgramFolder, ThatIsNoneCannotBeWritten) {
  const TemporaryFolder folder;
  folder.Write("a file", "");
  EXPECT_FALSE(CanBeWritten(folder.Path() + "\\gone"));
  EXPECT_FALSE(CanBeWritten(folder.Path() + "\\a file"));
  EXPECT_FALSE(CanBeWritten("Q:\\gone"));
  EXPECT_FALSE(CanBeWritten(""));
}

}  // namespace
}  // namespace dayvane
