// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "linux/recent/PickList.h"

namespace dayvane::recent {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* kPath =
    "/org.openoffice.Office.Histories/Histories/org.openoffice.Office.Histories:HistoryInfo['PickList']/";

std::string PickItem(const std::string& number, const std::string& address) {
  return "<item oor:path=\"" + std::string(kPath) + "OrderList\"><node oor:name=\"" + number +
         "\" oor:op=\"replace\"><prop oor:name=\"HistoryItemRef\" oor:op=\"fuse\"><value>" + address +
         "</value></prop></node></item>\n";
}

/// What lies beside it: the picture of a document.
std::string PictureItem(const std::string& address, std::size_t size) {
  return "<item oor:path=\"" + std::string(kPath) + "ItemList\"><node oor:name=\"" + address +
         "\" oor:op=\"replace\"><prop oor:name=\"Thumbnail\" oor:op=\"fuse\"><value>" + std::string(size, 'A') +
         "</value></prop></node></item>\n";
}

std::string Settings(const std::string& items) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<oor:items xmlns:oor=\"http://openoffice.org/2001/registry\">\n"
         "<item oor:path=\"/org.openoffice.Office.Common/Misc\"><prop oor:name=\"FirstRun\" "
         "oor:op=\"fuse\"><value>false"
         "</value></prop></item>\n" +
         items + "</oor:items>\n";
}

std::optional<std::vector<std::string>> Picks(const std::string& text, std::size_t atOnce = std::string::npos) {
  PickListReader reader;
  for (std::size_t at = 0; at < text.size(); at += std::min(atOnce, text.size()))
    reader.Feed(std::string_view(text).substr(at, atOnce));
  return reader.Finish();
}

std::vector<std::string> WholePicks(const std::string& items) {
  const auto picks = Picks(Settings(items));
  EXPECT_TRUE(picks);
  return picks.value_or(std::vector<std::string>());
}

TEST(PickList, EntriesAreToldNewestFirstWhateverTheirOrderInTheFile) {
  EXPECT_THAT(WholePicks(PickItem("10", "file:///c") + PickItem("0", "file:///a") + PickItem("9", "file:///b")),
              ElementsAre("file:///a", "file:///b", "file:///c"));
}

TEST(PickList, OtherSettingsAreNoEntries) {
  std::string help = PickItem("0", "vnd.sun.star.help://swriter");
  help.replace(help.find("PickList"), 8, "HelpBookmarks");
  EXPECT_THAT(WholePicks(help + PictureItem("file:///a", 100)), IsEmpty());
}

TEST(PickList, APictureOfAMegabyteIsPassedOver) {
  EXPECT_THAT(WholePicks(PictureItem("file:///a", 1 << 20) + PickItem("0", "file:///a") +
                         PictureItem("file:///b", 3 << 20) + PickItem("1", "file:///b")),
              ElementsAre("file:///a", "file:///b"));
}

TEST(PickList, NoLineIsKeptThatIsTooLongForAnEntry) {
  EXPECT_THAT(WholePicks(PickItem("0", "file:///" + std::string(1 << 16, 'a')) + PickItem("1", "file:///b")),
              ElementsAre("file:///b"));
}

TEST(PickList, ItDoesNotMatterHowTheFileIsCutIntoPieces) {
  const std::string text =
      Settings(PickItem("0", "file:///a") + PictureItem("file:///a", 100) + PickItem("1", "file:///b"));
  for (std::size_t atOnce = 1; atOnce < 200; ++atOnce) EXPECT_EQ(Picks(text, atOnce), Picks(text)) << atOnce;
}

TEST(PickList, BlanksInTheEndAreTheSameHoweverTheFileIsCut) {
  const std::string text = "<oor:items>\n" + PickItem("0", "file:///a") + "</oor:\n \nitems>\n\n";
  for (std::size_t atOnce = 1; atOnce < 20; ++atOnce) EXPECT_EQ(Picks(text, atOnce), Picks(text)) << atOnce;
}

TEST(PickList, SettingsWithoutAnEndAreNotWhole) {
  const std::string text = Settings(PickItem("0", "file:///a"));
  for (std::size_t length = 0; length < text.size() - 1; ++length)
    EXPECT_FALSE(Picks(text.substr(0, length))) << length;
  EXPECT_TRUE(Picks(text + " \r\n\n"));
  EXPECT_FALSE(Picks(text + "x"));
}

TEST(PickList, SpecialCharactersAreThoseOfXml) {
  EXPECT_THAT(WholePicks(PickItem("0", "file:///a&amp;b&lt;&#99;&#x64;&apos;&unknown;&#0;&#x110000;&")),
              ElementsAre("file:///a&b<cd'&unknown;&#0;&#x110000;&"));
}

TEST(PickList, SeveralItemsOrNodesMayShareALine) {
  std::string items = PickItem("0", "file:///a") + PickItem("1", "file:///b");
  std::erase(items, '\n');
  items.replace(items.find("</node></item><item"), 19,
                "</node><node oor:name=\"2\"><prop oor:name=\"HistoryItemRef\">"
                "<value>file:///c</value></prop></node></item><item");
  EXPECT_THAT(WholePicks(items), ElementsAre("file:///a", "file:///b", "file:///c"));
}

TEST(PickList, WhatIsNoEntryIsPassedOver) {
  for (const char* number : {"", "-1", "x", "1000", "99999999999999999999", "0x1"})
    EXPECT_THAT(WholePicks(PickItem(number, "file:///a")), IsEmpty()) << number;
  EXPECT_THAT(WholePicks(PickItem("0", "")), IsEmpty());
  std::string removed = PickItem("0", "file:///a");
  removed.replace(removed.find("<prop"), removed.find("</node>") - removed.find("<prop"), "");
  EXPECT_THAT(WholePicks(removed), IsEmpty());
}

TEST(PickList, AnAddressCountsOnceAndANumberForItsLastEntry) {
  EXPECT_THAT(WholePicks(PickItem("0", "file:///a") + PickItem("1", "file:///a")), SizeIs(1));
  EXPECT_THAT(WholePicks(PickItem("0", "file:///a") + PickItem("0", "file:///b")), ElementsAre("file:///b"));
}

using Entries = std::vector<std::uint64_t>;

/// The entries of `now` that have been picked since `before`.
Entries PickedEntries(const Entries& before, const Entries& now) {
  const auto range = PickedSince(before, now);
  return {now.begin() + static_cast<std::ptrdiff_t>(range.first),
          now.begin() + static_cast<std::ptrdiff_t>(range.last)};
}

TEST(PickList, ANewEntryAtTheTopWasPicked) {
  EXPECT_THAT(PickedEntries({1, 2, 3}, {9, 1, 2, 3}), ElementsAre(9));
  EXPECT_THAT(PickedEntries({}, {9, 8}), ElementsAre(9, 8));
  EXPECT_THAT(PickedEntries({1, 2, 3}, {9, 1, 2}), ElementsAre(9)) << "the oldest fell off the end";
}

TEST(PickList, AnEntryThatRoseToTheTopWasPicked) {
  EXPECT_THAT(PickedEntries({1, 2, 3}, {3, 1, 2}), ElementsAre(3));
  EXPECT_THAT(PickedEntries({1, 2}, {2, 1}), ElementsAre(2));
}

TEST(PickList, SeveralPicksInAnyOrderAreAllFound) {
  EXPECT_THAT(PickedEntries({1, 2, 3, 4, 5}, {3, 4, 5, 1, 2}), ElementsAre(3, 4, 5));
  EXPECT_THAT(PickedEntries({1, 2, 3, 4, 5}, {5, 9, 4, 1, 2, 3}), ElementsAre(5, 9, 4));
}

TEST(PickList, NothingWasPickedWhereNothingRose) {
  EXPECT_THAT(PickedEntries({1, 2, 3}, {1, 2, 3}), IsEmpty());
  EXPECT_THAT(PickedEntries({1, 2, 3}, {2, 3}), IsEmpty()) << "the user removed an entry";
  EXPECT_THAT(PickedEntries({1, 2, 3}, {}), IsEmpty());
}

TEST(PickList, WhatThePinsOfTheUserHoldAtTheTopWasNotPicked) {
  EXPECT_THAT(PickedEntries({1, 2, 3, 4}, {1, 2, 9, 3, 4}), ElementsAre(9));
  EXPECT_THAT(PickedEntries({1, 2, 3, 4}, {1, 2, 4, 3}), ElementsAre(4));
}

TEST(PickList, OfACutListWhatComesToLightAtTheEndWasNotPicked) {
  Entries before(PickListReader::kMostPicks);
  for (std::size_t i = 0; i < before.size(); ++i) before[i] = i;
  Entries now(before.begin() + 1, before.end());
  now.push_back(5000);
  EXPECT_THAT(PickedEntries(before, now), IsEmpty());
}

}  // namespace
}  // namespace dayvane::recent
