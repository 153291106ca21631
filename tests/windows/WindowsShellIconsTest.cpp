// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "base/Error.h"
#include "tests/support/TestDesktop.h"
#include "tests/windows/RegistryTree.h"
#include "windows/WindowsShellIcons.h"
#include "windows/launch/SystemIcon.h"

namespace dayvane {
namespace {

using launch::SystemIconIndex;
using launch::SystemIconName;

constexpr std::uint32_t kFile = platform::kAttributeArchive;
constexpr std::uint32_t kFolder = platform::kAttributeDirectory;
constexpr std::uint32_t kSmallByAttributes = 0x111;
constexpr std::uint32_t kLargeByAttributes = 0x114;

/// The place in the system's image list that the system itself tells for something of such a name.
std::string OfSystem(const wchar_t* name, DWORD attributes = FILE_ATTRIBUTE_NORMAL) {
  SHFILEINFOW info{};
  SHGetFileInfoW(name, attributes, &info, sizeof info, SHGFI_USEFILEATTRIBUTES | SHGFI_SYSICONINDEX);
  return SystemIconName(info.iIcon);
}

/// Documents ".dayvane-letter", which have an icon of their own.
struct LetterClass {
  LetterClass() {
    extension.SetText("", "", "Dayvane.Letter");
    letter.SetText("", "", "Letter");
    letter.SetText("DefaultIcon", "", "C:\\windows\\system32\\shell32.dll,8");
  }

  testing::ClassTree extension{".dayvane-letter"};
  testing::ClassTree letter{"Dayvane.Letter"};
};

class WindowsShellIconsTest : public ::testing::Test {
 protected:
  std::string IconOf(const std::string& name, std::uint32_t attributes = kFile,
                     std::uint32_t flags = kSmallByAttributes) {
    const auto info = icons.FileInfo(desktop.Folder() + "\\" + name, attributes, flags);
    return info && info->icon ? ::testing::PrintToString(info->icon->iconNames) : "none";
  }
  static std::string Only(const std::string& name) { return ::testing::PrintToString(std::vector<std::string>{name}); }
  void Write(const std::string& name, const std::string& target, bool isFolder = false) const {
    platform::ShellLink link;
    link.target = target;
    link.targetIsFolder = isFolder;
    testing::WriteShortcut(desktop.NativeFolder() + "/" + name, link, "2026-11-21 09:15:00");
  }

  LetterClass letters;
  testing::TestDesktop desktop;
  WindowsShellIcons icons{desktop.shell};
  const std::string folderIcon = Only(OfSystem(L"x", FILE_ATTRIBUTE_DIRECTORY));
  const std::string programIcon = Only(OfSystem(L"x.exe"));
  const std::string letterIcon = Only(OfSystem(L"x.dayvane-letter"));
};

TEST_F(WindowsShellIconsTest, ADocumentHasTheIconOfItsType) {
  ASSERT_NE(letterIcon, programIcon);
  EXPECT_EQ(IconOf("Note.dayvane-letter.lnk"), letterIcon);
  EXPECT_EQ(IconOf("Note.dayvane-letter.LNK", 0), letterIcon) << "one that is gone";
  EXPECT_EQ(IconOf("Note.dayvane-letter.lnk", kFile, kLargeByAttributes), letterIcon) << "one place for both sizes";
}

TEST_F(WindowsShellIconsTest, AProgramLooksLikeAProgramAndAFolderLikeAFolder) {
  EXPECT_EQ(IconOf("Winword.exe.lnk"), programIcon);
  EXPECT_EQ(IconOf("2026", kFolder), folderIcon);
  EXPECT_EQ(IconOf("2026.lnk", kFolder), folderIcon);
}

TEST_F(WindowsShellIconsTest, AShortcutWhoseNameNamesNoTypeHasTheIconOfWhatItLeadsTo) {
  Write("Note.dayvane-letter (2).lnk", "Q:\\gone\\Note.dayvane-letter");
  Write("Report.lnk", "\\\\nobody-there\\share\\Report.dayvane-letter");
  Write("Papers.lnk", "Q:\\Papers", true);
  EXPECT_EQ(IconOf("Note.dayvane-letter (2).lnk"), letterIcon);
  EXPECT_EQ(IconOf("Report.lnk"), letterIcon);
  EXPECT_EQ(IconOf("Papers.lnk"), folderIcon);
}

TEST_F(WindowsShellIconsTest, AnyNameHasAnIcon) {
  for (const std::string& name : {std::string("gone.lnk"), std::string("\u0391 \u6587\u66f8.dayvane-letter.lnk"),
                                  std::string("con.dayvane-letter.lnk"), std::string("a..lnk"), std::string(".lnk"),
                                  std::string("a.") + std::string(200, 'x') + ".lnk",
                                  std::string("Report.dayvane-letter."), std::string("a.lnk.lnk"), std::string(" ")})
    EXPECT_NE(IconOf(name), "none") << name;
  EXPECT_EQ(IconOf("con.dayvane-letter.lnk"), letterIcon);
}

TEST_F(WindowsShellIconsTest, WhatIsNotAskedForIsNotTold) {
  const auto names = icons.FileInfo("C:\\Docs\\Note.dayvane-letter.lnk", kFile, 0x610).value();
  EXPECT_EQ(names.icon, std::nullopt);
  EXPECT_EQ(names.displayName, "Note.dayvane-letter");
  EXPECT_NE(names.typeName, "");
  EXPECT_EQ(icons.FileInfo("C:\\Docs\\Note.dayvane-letter.lnk", kFile, kSmallByAttributes).value().displayName, "");
}

TEST_F(WindowsShellIconsTest, TheRootOfADriveHasAnIcon) {
  EXPECT_TRUE(icons.FileInfo("C:\\", 0, 0x101).value().icon.has_value());
}

TEST_F(WindowsShellIconsTest, ASpecialFolderHasAnIdentifierThatStays) {
  const std::uint64_t identifier = icons.SpecialFolderIdentifier(CSIDL_DESKTOPDIRECTORY);
  EXPECT_GE(identifier, 50U);
  EXPECT_EQ(icons.SpecialFolderIdentifier(CSIDL_DESKTOPDIRECTORY), identifier);
  EXPECT_TRUE(icons.FileInfo(identifier, 0, 0x109).value().icon.has_value());
  EXPECT_NE(icons.FileInfo(identifier, 0, 0x608).value().displayName, "");
}

TEST_F(WindowsShellIconsTest, ASpecialFolderThatIsNoneIsAnErrorAndAnotherIdentifierIsUnknown) {
  EXPECT_THROW(icons.SpecialFolderIdentifier(0x7F), Error);
  EXPECT_EQ(icons.FileInfo(std::uint64_t{12345678}, 0, 0x109), std::nullopt);
}

TEST_F(WindowsShellIconsTest, ThePlaceOfAnIconIsReadBackFromItsName) {
  EXPECT_EQ(SystemIconIndex(SystemIconName(7)), 7);
  for (const char* name : {"", "system:", "system:-1", "system:1x", "7", "text-plain", "system:99999999999"})
    EXPECT_EQ(SystemIconIndex(name), std::nullopt) << name;
}

}  // namespace
}  // namespace dayvane
