// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "links/LinkInfo.h"
#include "tests/links/LinkBuilder.h"

namespace dayvane::links {
namespace {

using testing::Info;
using testing::Number32;
using testing::Utf8;

std::string Unicode(const Info& info) {
  return UnicodePath(ByteView(info.Bytes()));
}
std::string Ansi(const Info& info) {
  return AnsiPath(ByteView(info.Bytes()));
}

Info LocalFile() {
  Info info;
  info.localPath = "C:\\docs\\a.txt";
  info.localPathWide = u"C:\\docs\\\u03b1.txt";
  info.suffixWide = u"";
  return info;
}

TEST(LinkInfo, TheUnicodePathIsTheLocalOne) {
  EXPECT_EQ(Unicode(LocalFile()), Utf8(u8"C:\\docs\\\u03b1.txt"));
}

TEST(LinkInfo, TheAnsiPathIsTheLocalOneInWindows1252) {
  Info info = LocalFile();
  info.localPath = "C:\\caf\xE9.txt";
  EXPECT_EQ(Ansi(info), Utf8(u8"C:\\caf\u00e9.txt"));
}

TEST(LinkInfo, ASuffixGoesOnFromTheLocalPath) {
  Info info;
  info.localPath = "C:\\";
  info.suffix = "docs\\a.txt";
  info.localPathWide = u"C:\\shared";
  info.suffixWide = u"docs\\b.txt";
  EXPECT_EQ(Ansi(info), "C:\\docs\\a.txt");
  EXPECT_EQ(Unicode(info), "C:\\shared\\docs\\b.txt");
}

TEST(LinkInfo, TheLocalPathOfASharedFolderCountsBeforeItsNetworkName) {
  Info info = LocalFile();
  info.netName = "\\\\server\\share";
  info.netNameWide = u"\\\\server\\share";
  EXPECT_EQ(Ansi(info), "C:\\docs\\a.txt");
  EXPECT_EQ(Unicode(info), Utf8(u8"C:\\docs\\\u03b1.txt"));
}

TEST(LinkInfo, ANetworkPathIsTheShareAndTheSuffix) {
  Info info;
  info.netName = "\\\\server\\share";
  info.suffix = "dir\\a.txt";
  info.headerSize = 0x1C;
  EXPECT_EQ(Ansi(info), "\\\\server\\share\\dir\\a.txt");
  EXPECT_EQ(Unicode(info), "");
}

TEST(LinkInfo, ANetworkPathIsReadInUnicodeWhereItsNamesAreThere) {
  Info info;
  info.netName = "\\\\server\\sh?re";
  info.netNameWide = u"\\\\server\\sh\u03b1re";
  info.suffix = "?.txt";
  info.suffixWide = u"\u03b1.txt";
  EXPECT_EQ(Unicode(info), Utf8(u8"\\\\server\\sh\u03b1re\\\u03b1.txt"));
}

TEST(LinkInfo, ANetworkPartWithTheShortHeaderHasNoUnicodeName) {
  Info info;
  // Where a longer header has the offset of the Unicode name, this one has its ANSI name.
  info.netName = std::string("\x18\0\0\0", 4) + testing::Utf16(u"wrong") + std::string(2, '\0');
  info.suffixWide = u"";
  EXPECT_EQ(Unicode(info), "");
}

TEST(LinkInfo, AShareWithoutANameIsKnownByItsDrive) {
  Info info;
  info.deviceName = "N:";
  info.suffix = "dir\\a.txt";
  EXPECT_EQ(Ansi(info), "N:\\dir\\a.txt");
}

TEST(LinkInfo, AnOldHeaderHasNoUnicodePath) {
  Info info;
  info.localPath = "C:\\a.txt";
  info.headerSize = 0x1C;
  EXPECT_EQ(Unicode(info), "");
  EXPECT_EQ(Ansi(info), "C:\\a.txt");
}

TEST(LinkInfo, AUnicodePathWhoseSuffixIsInAnsiAloneIsNotWhole) {
  Info info;
  info.localPath = "C:\\docs";
  info.localPathWide = u"C:\\docs";
  info.suffix = "a.txt";
  EXPECT_EQ(Unicode(info), "");
  EXPECT_EQ(Ansi(info), "C:\\docs\\a.txt");
}

TEST(LinkInfo, APathThatItsFlagDoesNotAnnounceIsNotThere) {
  std::string bytes = LocalFile().Bytes();
  bytes[8] = 0;
  EXPECT_EQ(UnicodePath(ByteView(bytes)), "");
  EXPECT_EQ(AnsiPath(ByteView(bytes)), "");
}

TEST(LinkInfo, ANetworkPathThatItsFlagDoesNotAnnounceIsNotThere) {
  Info info;
  info.netName = "\\\\server\\share";
  info.suffix = "a.txt";
  std::string bytes = info.Bytes();
  ASSERT_NE(AnsiPath(ByteView(bytes)), "");
  bytes[8] = 0;
  EXPECT_EQ(AnsiPath(ByteView(bytes)), "");
}

TEST(LinkInfo, AnOffsetBeyondTheEndOrIntoTheHeaderIsNoText) {
  const std::string good = LocalFile().Bytes();
  for (const std::uint32_t offset :
       {0U, 4U, 0x1BU, 0x7FFFFFFFU, 0xFFFFFFFFU, static_cast<std::uint32_t>(good.size())}) {
    std::string bytes = good;
    bytes.replace(16, 4, Number32(offset));
    bytes.replace(28, 4, Number32(offset));
    EXPECT_EQ(AnsiPath(ByteView(bytes)), "") << offset;
    EXPECT_EQ(UnicodePath(ByteView(bytes)), "") << offset;
  }
}

TEST(LinkInfo, ALostSuffixIsALostPath) {
  Info info = LocalFile();
  info.suffix = "x";
  std::string bytes = info.Bytes();
  bytes.replace(24, 4, Number32(0xFFFF));
  bytes.replace(32, 4, Number32(0xFFFF));
  EXPECT_EQ(AnsiPath(ByteView(bytes)), "");
  EXPECT_EQ(UnicodePath(ByteView(bytes)), "");
}

TEST(LinkInfo, ANetworkPartThatLiesAboutItsSizeIsBounded) {
  Info info;
  info.netName = "\\\\server\\share";
  info.suffix = "a.txt";
  const std::string good = info.Bytes();
  const std::size_t networkAt = 0x24;
  for (const std::uint32_t size : {0U, 4U, 0x14U, 0xFFFFFFFFU}) {
    std::string bytes = good;
    bytes.replace(networkAt, 4, Number32(size));
    EXPECT_EQ(AnsiPath(ByteView(bytes)), size == 0xFFFFFFFFU ? "\\\\server\\share\\a.txt" : "") << size;
  }
}

TEST(LinkInfo, WhatIsWrittenGivesTheSameUnicodePath) {
  for (const char* target :
       {"Z:\\home\\a.txt", "Z:", "\\\\server\\share", "\\\\server\\share\\", "\\\\server\\share\\a\\b",
        "\\\\server\\share\\\\a", "\\\\server", "\\\\", "\\", "hello", "https://a.example/"})
    EXPECT_EQ(UnicodePath(ByteView(LinkInfoFor(target))), target);
}

TEST(LinkInfo, WhatIsWrittenGivesTheAnsiPathToOldReaders) {
  EXPECT_EQ(AnsiPath(ByteView(LinkInfoFor(Utf8(u8"Z:\\caf\u00e9 \u6587.txt")))), Utf8(u8"Z:\\caf\u00e9 ?.txt"));
  EXPECT_EQ(AnsiPath(ByteView(LinkInfoFor("\\\\server\\share\\a"))), "\\\\server\\share\\a");
}

}  // namespace
}  // namespace dayvane::links
