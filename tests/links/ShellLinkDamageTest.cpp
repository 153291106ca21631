// SPDX-License-Identifier: MIT

// Links that are damaged, by accident or on purpose. These tests find more under the sanitizers.

#include <gtest/gtest.h>
#include <random>

#include "links/ShellLinkFormat.h"
#include "tests/links/LinkBuilder.h"

namespace dayvane::links {
namespace {

using platform::ShellLink;
using testing::Item;
using testing::ItemList;
using testing::Link;
using testing::Number16;
using testing::Number32;
using testing::Utf16;

constexpr std::size_t kHeaderSize = 76;

/// Whatever the bytes are: reading them ends, and what was read can be written and read again.
void ExpectSurvives(const std::string& bytes) {
  const auto link = ParseShellLink(bytes);
  if (!link) return;
  EXPECT_EQ(ParseShellLink(WriteShellLink(*link)), link);
}

std::vector<std::string> Samples() {
  ShellLink network = testing::TypicalFields();
  network.target = "\\\\server\\share\\docs\\Report.odt";
  return {testing::TypicalLink(), WriteShellLink(testing::TypicalFields()), WriteShellLink(network)};
}

TEST(ShellLinkDamage, ALinkCutAfterItsHeaderIsStillALink) {
  for (const std::string& sample : Samples())
    for (std::size_t length = 0; length <= sample.size(); ++length) {
      // In memory of its own size, so that the sanitizers see a step beyond the end.
      const std::string cut(sample.data(), length);
      EXPECT_EQ(ParseShellLink(cut).has_value(), length >= kHeaderSize) << length;
    }
}

TEST(ShellLinkDamage, ALinkCutShortHasEachFieldWholeOrNotAtAll) {
  const ShellLink whole = testing::TypicalFields();
  const std::string bytes = WriteShellLink(whole);
  for (std::size_t length = kHeaderSize; length <= bytes.size(); ++length) {
    const ShellLink link = ParseShellLink(bytes.substr(0, length)).value();
    EXPECT_TRUE(link.target.empty() || link.target == whole.target) << length << ' ' << link.target;
    EXPECT_TRUE(link.workingDirectory.empty() || link.workingDirectory == whole.workingDirectory) << length;
    EXPECT_TRUE(link.arguments.empty() || link.arguments == whole.arguments) << length;
    EXPECT_TRUE(link.iconFile.empty() || link.iconFile == whole.iconFile) << length;
    EXPECT_EQ(link.iconIndex, whole.iconIndex) << length;
  }
}

TEST(ShellLinkDamage, WhatStandsBeforeTheCutIsRead) {
  const std::string bytes = testing::TypicalLink();
  const std::size_t argumentsAt = bytes.find(Utf16(u"-x"));
  const ShellLink link = ParseShellLink(bytes.substr(0, argumentsAt)).value();
  EXPECT_EQ(link.target, testing::TypicalFields().target);
  EXPECT_EQ(link.workingDirectory, testing::TypicalFields().workingDirectory);
  EXPECT_EQ(link.arguments, "");
}

TEST(ShellLinkDamage, RandomBytesAfterAHeaderAreSurvived) {
  std::mt19937 random(20261120);
  const std::string header = testing::TypicalLink().substr(0, kHeaderSize);
  for (int i = 0; i < 20'000; ++i) {
    std::string bytes = header;
    bytes.replace(20, 4, Number32(static_cast<std::uint32_t>(random())));
    for (std::size_t rest = random() % 300; rest > 0; --rest)
      bytes += static_cast<char>(random() % 4 == 0 ? random() : 0);
    ExpectSurvives(bytes);
  }
}

TEST(ShellLinkDamage, FlippedBitsAreSurvived) {
  std::mt19937 random(4711);
  const auto samples = Samples();
  for (int i = 0; i < 30'000; ++i) {
    std::string bytes = samples[random() % samples.size()];
    for (std::size_t flips = 1 + random() % 8; flips > 0; --flips) {
      char& byte = bytes[20 + random() % (bytes.size() - 20)];
      byte = static_cast<char>(byte ^ 1 << random() % 8);
    }
    ExpectSurvives(bytes);
  }
}

TEST(ShellLinkDamage, ExtremeNumbersInEveryPlaceAreSurvived) {
  for (const std::string& sample : Samples())
    for (std::size_t at = 20; at + 4 <= sample.size(); ++at)
      for (const std::uint32_t number : {0U, 1U, 0xFFFFU, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        std::string bytes = sample;
        ExpectSurvives(bytes.replace(at, 4, Number32(number)));
      }
}

TEST(ShellLinkDamage, AnItemListLongerThanTheFileHidesTheRest) {
  Link link;
  link.items = ItemList({testing::DriveItem("C:\\"), testing::OldFileItem("a.txt")});
  link.workingDirectory = Utf16(u"C:\\w");
  std::string bytes = link.Bytes();
  bytes.replace(kHeaderSize, 2, Number16(0xFFFF));
  EXPECT_EQ(ParseShellLink(bytes), (ShellLink{"C:\\a.txt", "", "", "", 0, 1}));
}

TEST(ShellLinkDamage, AnItemOfSizeOneEndsTheListWithoutAPath) {
  Link link;
  link.items = testing::DriveItem("C:\\") + std::string(60'000, '\1');
  link.workingDirectory = Utf16(u"C:\\w");
  EXPECT_EQ(ParseShellLink(link.Bytes()), (ShellLink{"", "C:\\w", "", "", 0, 1}));
}

TEST(ShellLinkDamage, AnExtensionBlockOfSizeZeroDoesNotLoop) {
  std::string file = testing::FileItem(std::string("A~1.TXT\0", 8), u"Long.txt");
  file.replace(14 + 8, 2, Number16(0));
  Link link;
  link.items = ItemList({testing::DriveItem("C:\\"), file});
  EXPECT_EQ(ParseShellLink(link.Bytes())->target, "C:\\A~1.TXT");
}

TEST(ShellLinkDamage, ALinkInfoThatPointsIntoItselfIsBounded) {
  Link link;
  std::string info = Number32(0x24) + Number32(0x24) + Number32(3);
  for (int i = 0; i < 6; ++i) info += Number32(0x1C);
  link.info = info;
  link.workingDirectory = Utf16(u"C:\\w");
  EXPECT_EQ(ParseShellLink(link.Bytes())->workingDirectory, "C:\\w");
}

TEST(ShellLinkDamage, ALinkInfoTooSmallForItsOwnSizeIsSkipped) {
  Link link;
  link.info = Number32(0);
  link.workingDirectory = Utf16(u"C:\\w");
  EXPECT_EQ(ParseShellLink(link.Bytes())->workingDirectory, "C:\\w");
}

TEST(ShellLinkDamage, ALinkInfoLongerThanTheFileIsReadAsFarAsItGoes) {
  testing::Info info;
  info.localPath = "C:\\a.txt";
  Link link;
  link.info = info.Bytes();
  link.info->replace(0, 4, Number32(0xFFFFFFFF));
  EXPECT_EQ(ParseShellLink(link.Bytes())->target, "C:\\a.txt");
}

TEST(ShellLinkDamage, ATextThatClaimsMoreThanTheFileHoldsIsNotThere) {
  std::string bytes = Link{}.Bytes();
  bytes[20] = static_cast<char>(0x80 | 0x10 | 0x20);
  bytes.resize(kHeaderSize);
  bytes += Number16(0xFFFF) + Utf16(u"C:\\w");
  EXPECT_EQ(ParseShellLink(bytes), ShellLink{});
}

TEST(ShellLinkDamage, ABlockCutShortIsNotThere) {
  Link link;
  link.blocks = testing::EnvironmentBlock(0xA0000001, "C:\\a.txt", u"C:\\a.txt");
  const std::string bytes = link.Bytes();
  EXPECT_EQ(ParseShellLink(bytes.substr(0, bytes.size() - 8))->target, "");
}

TEST(ShellLinkDamage, AnEnvironmentBlockWithoutRoomForItsFieldsIsEmpty) {
  Link link;
  link.blocks = Number32(8) + Number32(0xA0000001) + Number32(8) + Number32(0xA0000007);
  EXPECT_EQ(ParseShellLink(link.Bytes()), ShellLink{});
}

TEST(ShellLinkDamage, AnEnvironmentBlockWithoutANullEndsWithItsField) {
  Link link;
  link.blocks = testing::EnvironmentBlock(0xA0000001, std::string(260, 'a'), std::u16string(260, u'w'));
  EXPECT_EQ(ParseShellLink(link.Bytes())->target, std::string(260, 'w'));
}

TEST(ShellLinkDamage, AMegabyteOfTinyPartsIsReadInReasonableTime) {
  Link blocks;
  for (int i = 0; i < 250'000; ++i) blocks.blocks += Number32(4);
  EXPECT_EQ(ParseShellLink(blocks.Bytes()), ShellLink{});
  Link items;
  std::string list;
  while (list.size() < 65'000) list += Item("\x1F");
  items.items = list;
  EXPECT_EQ(ParseShellLink(items.Bytes()), ShellLink{});
}

}  // namespace
}  // namespace dayvane::links
