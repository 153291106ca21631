// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "windows/files/NativePath.h"

namespace dayvane::files {
namespace {

TEST(NativePath, APathIsTakenLiterallyHoweverLongItIsAndWhateverItsNamesAre) {
  EXPECT_EQ(ToNative("C:\\Users\\Ana\\Report.odt"), L"\\\\?\\C:\\Users\\Ana\\Report.odt");
  EXPECT_EQ(ToNative("C:\\con.lnk"), L"\\\\?\\C:\\con.lnk");
  EXPECT_EQ(ToNative("C:\\\u03a9\\\U0001F4C4"), L"\\\\?\\C:\\\u03a9\\\U0001F4C4");
}

TEST(NativePath, WhatALiteralPathMayNotHaveIsWorkedOutBefore) {
  EXPECT_EQ(ToNative("C:\\a\\.\\b\\..\\\\c\\"), L"\\\\?\\C:\\a\\c");
  EXPECT_EQ(ToNative("C:\\..\\..\\a"), L"\\\\?\\C:\\a");
  EXPECT_EQ(ToNative("C:"), L"\\\\?\\C:\\");
}

TEST(NativePath, AShareHasAFormOfItsOwn) {
  EXPECT_EQ(ToNative("\\\\server\\share\\a"), L"\\\\?\\UNC\\server\\share\\a");
  EXPECT_EQ(ToNative("\\\\server\\share\\..\\..\\a"), L"\\\\?\\UNC\\server\\share\\a");
  EXPECT_EQ(FromNative(L"\\\\?\\UNC\\server\\share\\a"), "\\\\server\\share\\a");
}

TEST(NativePath, WhatIsNoAbsolutePathHasNoNativeForm) {
  using namespace std::string_literals;
  for (const std::string& path :
       {""s, "a"s, "\\a"s, "C:a"s, "1:\\a"s, "\\\\server"s, "\\\\?\\C:\\a"s, "C:\\a\0b"s, "C:\\\xFF"s})
    EXPECT_EQ(ToNative(path), std::nullopt) << path;
}

TEST(NativePath, ANameThatIsNotUnicodeHasNoFormInTheProgram) {
  const std::wstring half{L'C', L':', L'\\', wchar_t{0xD800}};
  EXPECT_EQ(FromNative(half), std::nullopt);
}

}  // namespace
}  // namespace dayvane::files
