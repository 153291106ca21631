// SPDX-License-Identifier: MIT
#include <algorithm>
#include <gtest/gtest.h>

#include "links/ItemList.h"
#include "tests/links/LinkBuilder.h"

namespace dayvane::links {
namespace {

using testing::DriveItem;
using testing::FileItem;
using testing::Item;
using testing::ItemList;
using testing::LongNameBlock;
using testing::OldFileItem;
using testing::RootItem;
using testing::ShareItem;
using testing::Utf16;
using testing::Utf8;

std::string PathOf(const std::vector<std::string>& items) {
  return ItemListPath(ByteView(ItemList(items)));
}

std::string Primary(const char* name) {
  return std::string(name) + '\0';
}

TEST(ItemList, ADriveAndFilesSpellAFullPath) {
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), OldFileItem("docs"), OldFileItem("a.txt")}), "C:\\docs\\a.txt");
}

TEST(ItemList, ADriveAloneIsItsRoot) {
  EXPECT_EQ(PathOf({RootItem(), DriveItem("D:\\")}), "D:\\");
}

TEST(ItemList, TheRootItemMayBeMissing) {
  EXPECT_EQ(PathOf({DriveItem("D:\\"), OldFileItem("a.txt")}), "D:\\a.txt");
}

TEST(ItemList, ADriveIsKnownByItsNameWhateverItsTypeSays) {
  EXPECT_EQ(PathOf({Item(std::string("\x2AJ:\\", 4) + std::string(19, '\0')), OldFileItem("a")}), "J:\\a");
}

class ItemListOfVersion : public ::testing::TestWithParam<unsigned> {};

TEST_P(ItemListOfVersion, TheLongNameOfTheExtensionBlockCounts) {
  const auto file = FileItem(Primary("REPORT~1.ODT"), u"R\u00e9port \u6587\u66f8.odt", GetParam());
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), file}), Utf8(u8"C:\\R\u00e9port \u6587\u66f8.odt"));
}

TEST_P(ItemListOfVersion, ABlockWithoutTheFieldThatTellsWhereTheNameStartsIsReadByItsVersion) {
  auto file = FileItem(Primary("A~1.ODT"), u"Long name.odt", GetParam());
  const std::size_t blockAt = 14 + 8;
  file[blockAt + 16] = 0;
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), file}), "C:\\Long name.odt");
}

// Windows XP; Vista; 7; 8.1 to 11.
INSTANTIATE_TEST_SUITE_P(EveryVersion, ItemListOfVersion, ::testing::Values(3U, 7U, 8U, 9U),
                         [](const auto& test) { return "Version" + std::to_string(test.param); });

TEST(ItemList, TheFieldThatTellsWhereTheNameStartsHoldsForALaterVersionToo) {
  auto block = LongNameBlock(9, u"xxNew.odt", 16);
  block[2] = 12;
  block[16] = 50;
  const auto file = Item("\x32" + std::string(11, '\0') + "a" + '\0' + block);
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), file}), "C:\\New.odt");
}

TEST(ItemList, ALongNameIsFoundAfterThePrimaryNameWhereTheLastFieldDoesNotLeadToIt) {
  for (const char* name : {"EVEN~1.ODT", "ODD~1.ODT"}) {
    auto file = FileItem(Primary(name), u"Long name.odt");
    file[file.size() - 2] = 3;
    EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), file}), "C:\\Long name.odt");
  }
}

TEST(ItemList, ALongNameIsFoundWhereTheLastFieldLeadsToIt) {
  const std::string head = "\x32" + std::string(11, '\0') + Primary("A~1.ODT") + "unknown bytes!";
  const auto file = Item(head + LongNameBlock(9, u"Long name.odt", head.size() + 2));
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), file}), "C:\\Long name.odt");
}

TEST(ItemList, ALongNameIsFoundAmongOtherExtensionBlocks) {
  const std::string head = "\x32" + std::string(11, '\0') + Primary("A~1.ODT");
  const std::string other = testing::Number16(12) + testing::Number16(0) + testing::Number32(0xBEEF0026) + "\1\2" +
                            testing::Number16(static_cast<std::uint32_t>(head.size() + 2));
  const auto file = Item(head + other + LongNameBlock(9, u"Long name.odt", head.size() + 2));
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), file}), "C:\\Long name.odt");
}

/// A file item as Wine writes it: its block has neither version nor signature, and fills the item.
std::string UnsignedFileItem(const std::string& primary, const std::u16string& name, const std::string& more = "") {
  const std::string head = "\x32" + std::string(11, '\0') + primary + std::string(primary.size() % 2, '\0');
  const std::string body = std::string(18, '\0') + Utf16(name) + std::string(2, '\0');
  const auto number = [](std::size_t value) { return testing::Number16(static_cast<std::uint32_t>(value)); };
  return Item(head + number(body.size() + 4) + body + more + number(head.size() + 2));
}

TEST(ItemList, ALongNameIsFoundInABlockWithoutASignatureThatFillsItsItem) {
  const auto folder = UnsignedFileItem(Primary("Docs"), u"Docs");
  const auto file = UnsignedFileItem(Primary("? ?.odt"), u"\u0391 \u6587.odt");
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), folder, file}), Utf8(u8"C:\\Docs\\\u0391 \u6587.odt"));
}

TEST(ItemList, AnotherBlockWithoutASignatureIsPassedOver) {
  const auto longer = UnsignedFileItem(Primary("a.odt"), u"other.odt", "more");
  const auto nameless = UnsignedFileItem(Primary("b.odt"), u"");
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), longer}), "C:\\a.odt");
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), nameless}), "C:\\b.odt");
}

TEST(ItemList, AnItemBeforeWindowsXpHasItsLongNameFirst) {
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), OldFileItem("Long n\xE4me.txt", "LONGNM~1.TXT")}),
            Utf8(u8"C:\\Long n\u00e4me.txt"));
}

TEST(ItemList, APrimaryNameMayBeUnicode) {
  const auto file = Item("\x36" + std::string(11, '\0') + Utf16(u"\u03a9.txt") + std::string(4, '\0'));
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), file}), Utf8(u8"C:\\\u03a9.txt"));
}

TEST(ItemList, AShareAndFilesSpellANetworkPath) {
  EXPECT_EQ(PathOf({RootItem(), ShareItem("\\\\server\\share"), OldFileItem("a.txt")}), "\\\\server\\share\\a.txt");
}

TEST(ItemList, TheItemsAboveAShareOnlyLeadToIt) {
  EXPECT_EQ(PathOf({RootItem(), ShareItem("Workgroup", 0x41), ShareItem("\\\\server", 0x42),
                    ShareItem("\\\\server\\share", 0x43), OldFileItem("a.txt")}),
            "\\\\server\\share\\a.txt");
}

TEST(ItemList, FilesBelowAFolderThatIsNoDriveSpellNoPath) {
  EXPECT_EQ(PathOf({RootItem(), OldFileItem("docs"), OldFileItem("a.txt")}), "");
  EXPECT_EQ(PathOf({RootItem(), Item("\x2E\x80" + std::string(16, 'g')), OldFileItem("a.txt")}), "") << "known folder";
}

TEST(ItemList, AnItemThatIsNoFileBelowADriveSpellsNoPath) {
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), OldFileItem("a.zip"),
                    Item("\x52g\xB1\xAC"
                         "inside.txt")}),
            "");
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), RootItem()}), "");
}

TEST(ItemList, ANameWithABackslashSpellsNoPath) {
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), OldFileItem("..\\x.txt")}), "");
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), FileItem(Primary("A~1"), u"a\\b")}), "");
}

TEST(ItemList, AnEmptyNameSpellsNoPath) {
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), OldFileItem("")}), "");
}

TEST(ItemList, ANameThatDoesNotEndInsideItsItemSpellsNoPath) {
  std::string file = OldFileItem("docs");
  constexpr std::size_t kNameAt = 14;
  std::replace(file.begin() + kNameAt, file.end(), '\0', 'x');
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), file}), "");
}

TEST(ItemList, AListWithoutItsEndSpellsNoPath) {
  const std::string list = ItemList({RootItem(), DriveItem("C:\\"), OldFileItem("docs"), OldFileItem("a.txt")});
  for (std::size_t length = 0; length < list.size(); ++length)
    EXPECT_EQ(ItemListPath(ByteView(std::string_view(list).substr(0, length))), "") << length;
}

TEST(ItemList, NothingAfterTheEndOfAListCounts) {
  EXPECT_EQ(ItemListPath(ByteView(ItemList({DriveItem("C:\\")}) + OldFileItem("a.txt"))), "C:\\");
}

TEST(ItemList, ItemsTooSmallToHoldATypeSpellNoPath) {
  EXPECT_EQ(PathOf({DriveItem("C:\\"), testing::Number16(1), testing::Number16(1)}), "");
  EXPECT_EQ(PathOf({DriveItem("C:\\"), testing::Number16(2)}), "");
}

TEST(ItemList, ADamagedLongNameSpellsNoPathBecauseTheShortOneMayBeAnAlias) {
  auto file = FileItem(Primary("A~1.ODT"), u"Long name.odt");
  const std::size_t blockAt = 14 + 8;
  file[blockAt] = 60;
  EXPECT_EQ(PathOf({RootItem(), DriveItem("C:\\"), file}), "");
}

TEST(ItemList, WhatIsWrittenSpellsTheSamePath) {
  for (const char* path : {"Z:\\", "Z:\\a", "c:\\docs\\Report.odt", "\\\\server\\share\\a\\b.txt"})
    EXPECT_EQ(ItemListPath(ByteView(ItemListFor(path))), path);
}

TEST(ItemList, ALastBackslashMakesTheLastItemAFolder) {
  const std::string list = ItemListFor("Z:\\a\\");
  const std::size_t fileAt = 20 + 25;
  EXPECT_EQ(list[fileAt + 2], '\x31');
  EXPECT_EQ(ItemListPath(ByteView(list)), "Z:\\a");
}

TEST(ItemList, APathOfAnotherFormHasNoItems) {
  for (const char* path : {"", "Z:", "Z", "1:\\a", "a\\b", "\\\\server", "\\\\server\\", "\\\\\\a", "/home/ana"})
    EXPECT_EQ(ItemListFor(path), "") << path;
}

TEST(ItemList, AShareThatNeedsUnicodeHasNoItems) {
  EXPECT_EQ(ItemListFor(Utf8(u8"\\\\s\u00e9rver\\share\\a")), "");
}

TEST(ItemList, APathTooLongForAListHasNoItems) {
  EXPECT_NE(ItemListFor("Z:\\" + std::string(20'000, 'x')), "");
  EXPECT_EQ(ItemListFor("Z:\\" + std::string(22'000, 'x')), "");
  EXPECT_EQ(ItemListFor("Z:\\" + std::string(1'000'000, 'x')), "");
}

}  // namespace
}  // namespace dayvane::links
