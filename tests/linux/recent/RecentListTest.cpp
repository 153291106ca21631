// SPDX-License-Identifier: MIT
#include <QString>
#include <cstdlib>
#include <gmock/gmock.h>
#include <pugixml.hpp>

#include "linux/recent/DocumentPath.h"
#include "linux/recent/RecentList.h"

namespace dayvane::recent {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;
using ::testing::UnorderedElementsAre;

constexpr std::string_view kStart =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<xbel version=\"1.0\"\n"
    "      xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\"\n"
    "      xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\"\n"
    ">\n";
constexpr std::string_view kEnd = "</xbel>";

Moment At(const char* text) {
  return ParseIsoMoment(QString::fromLatin1(text)).value();
}

/// A bookmark as GTK writes it.
std::string Bookmark(const std::string& href, const std::string& opened = "2026-11-20T23:45:16.110427Z") {
  return "  <bookmark href=\"" + href + "\" added=\"2026-11-01T10:00:00.000001Z\" modified=\"" + opened +
         "\" visited=\"2026-11-01T10:00:00.000002Z\">\n"
         "    <info>\n"
         "      <metadata owner=\"http://freedesktop.org\">\n"
         "        <mime:mime-type type=\"text/plain\"/>\n"
         "        <bookmark:groups>\n          <bookmark:group>Mousepad</bookmark:group>\n        </bookmark:groups>\n"
         "        <bookmark:applications>\n"
         "          <bookmark:application name=\"Mousepad\" exec=\"&apos;mousepad %u&apos;\" modified=\"" +
         opened +
         "\" count=\"1\"/>\n"
         "        </bookmark:applications>\n"
         "      </metadata>\n"
         "    </info>\n"
         "  </bookmark>\n";
}

std::string List(const std::string& bookmarks) {
  return std::string(kStart) + bookmarks + std::string(kEnd);
}

std::vector<std::string> Addresses(const RecentList& list) {
  std::vector<std::string> addresses;
  for (const RecentEntry& entry : list.entries) addresses.push_back(entry.href);
  return addresses;
}

/// The one entry of a list.
RecentEntry Only(const RecentList& list) {
  EXPECT_EQ(list.entries.size(), 1U);
  return list.entries.empty() ? RecentEntry() : list.entries.front();
}

std::vector<Moment> Moments(const RecentEntry& entry) {
  std::vector<Moment> moments;
  for (const RecentEntry::Use& use : entry.openings) moments.push_back(use.moment);
  return moments;
}

std::vector<std::string> Programs(const RecentEntry& entry) {
  std::vector<std::string> programs;
  for (const RecentEntry::Use& use : entry.openings) programs.push_back(use.program);
  return programs;
}

/// A sound list but for what is in the address of its one entry.
RecentList ListOf(const std::string& address) {
  return ParseRecentList(List("<bookmark href=\"" + address + "\"><title>t</title></bookmark>"));
}

std::size_t bytesAllocated = 0;

void* CountAndAllocate(std::size_t size) {
  bytesAllocated += size;
  return std::malloc(size);  // NOLINT(cppcoreguidelines-no-malloc): what the parser itself would ask
}

/// The memory asked for while a list is read of which all entries but the last are damaged.
std::size_t MemoryForDamagedEntries(int count) {
  std::string bookmarks;
  for (int i = 0; i < count; ++i)
    bookmarks += "<bookmark href=\"file:///" + std::to_string(i) + "\"><info>" + std::string(300, 'x') + "<\n";
  const std::string text = List(bookmarks + Bookmark("file:///last"));
  const auto allocate = pugi::get_memory_allocation_function();
  const auto release = pugi::get_memory_deallocation_function();
  bytesAllocated = 0;
  pugi::set_memory_management_functions(CountAndAllocate, std::free);
  EXPECT_THAT(Addresses(ParseRecentList(text)), ElementsAre("file:///last"));
  pugi::set_memory_management_functions(allocate, release);
  return bytesAllocated;
}

TEST(RecentList, AnEntryOfGtkIsRead) {
  const RecentList list = ParseRecentList(
      List("<bookmark href=\"file:///home/ana/docs/first.txt\" added=\"2026-11-20T23:45:16.110424Z\" "
           "modified=\"2026-11-20T23:45:16.110428Z\" visited=\"2026-11-20T23:45:16.110425Z\">"
           "<desc>Language: ; Encoding: UTF-8; Cursor: 0:0;</desc><info><metadata owner=\"http://freedesktop.org\">"
           "<mime:mime-type type=\"text/plain\"/><bookmark:groups><bookmark:group>Mousepad</bookmark:group>"
           "</bookmark:groups><bookmark:applications><bookmark:application name=\"Mousepad\" "
           "exec=\"&apos;mousepad %u&apos;\" modified=\"2026-11-20T23:45:16.110427Z\" count=\"1\"/>"
           "</bookmark:applications></metadata></info></bookmark>"));
  EXPECT_TRUE(list.isWellFormed);
  EXPECT_TRUE(list.isComplete);
  EXPECT_EQ(Only(list).href, "file:///home/ana/docs/first.txt");
  EXPECT_EQ(Only(list).mimeType, "text/plain");
  EXPECT_FALSE(Only(list).isPrivate);
  EXPECT_THAT(Moments(Only(list)),
              UnorderedElementsAre(At("2026-11-20T23:45:16.110427Z"), At("2026-11-20T23:45:16.110425Z")));
}

TEST(RecentList, EveryOpeningNamesTheProgramThatTheListNames) {
  const RecentList list = ParseRecentList(List(
      "<bookmark href=\"file:///a\" visited=\"2026-11-01T00:00:00Z\"><info><metadata><bookmark:applications>"
      "<bookmark:application name=\"Mousepad\" exec=\"&apos;mousepad %u&apos;\" modified=\"2026-11-20T00:00:00Z\"/>"
      "<bookmark:application exec=\"&apos;gedit %u&apos;\" modified=\"2026-11-21T00:00:00Z\"/>"
      "<bookmark:application modified=\"2026-11-22T00:00:00Z\"/>"
      "</bookmark:applications></metadata></info></bookmark>"));
  EXPECT_THAT(Programs(Only(list)), ElementsAre("Mousepad", "gedit", "", ""));
}

TEST(RecentList, TheTimesOfAnEntryBelongToItsOnlyProgram) {
  const RecentList list = ParseRecentList(
      List("<bookmark href=\"file:///a\" modified=\"2026-11-01T00:00:00Z\" added=\"2026-11-01T00:00:00Z\"><info>"
           "<metadata><bookmark:applications><bookmark:application name=\"Mousepad\"/></bookmark:applications>"
           "</metadata></info></bookmark>"));
  EXPECT_THAT(Programs(Only(list)), ElementsAre("Mousepad", "Mousepad"));
}

TEST(RecentList, AnEntryOfKdeIsRead) {
  const RecentList list = ParseRecentList(
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel xmlns:mime=\"http://www.freedesktop.org/standards/"
      "shared-mime-info\" version=\"1.0\" xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\">\n"
      "  <bookmark visited=\"2026-11-20T22:11:54.123000Z\" modified=\"2026-11-20T22:11:54.123000Z\" "
      "added=\"2026-11-20T22:11:54.123000Z\" href=\"file:///home/ana/a;b%5Bc%5D.png\">\n    <info>\n      <metadata "
      "owner=\"http://freedesktop.org\">\n        <mime:mime-type type=\"image/png\"/>\n        "
      "<bookmark:applications>\n          <bookmark:application count=\"1\" name=\"gwenview\" "
      "exec=\"gwenview %U %u\" modified=\"2026-11-20T22:11:54.123000Z\"/>\n        </bookmark:applications>\n      "
      "</metadata>\n    </info>\n  </bookmark>\n</xbel>\n");
  EXPECT_TRUE(list.isWellFormed);
  EXPECT_EQ(Only(list).href, "file:///home/ana/a;b%5Bc%5D.png");
  EXPECT_THAT(Moments(Only(list)), ::testing::Each(At("2026-11-20T22:11:54.123000Z")));
}

TEST(RecentList, AnEntryOfLibreOfficeIsRead) {
  const RecentList list = ParseRecentList(List(
      "<bookmark href=\"file:///home/ana/Letter.odt\" added=\"2026-11-20T22:11:54.000001Z\" "
      "modified=\"2026-11-20T22:11:54.500000Z\" visited=\"2026-11-20T22:11:54.000002Z\"><info><metadata "
      "owner=\"http://freedesktop.org\"><mime:mime-type type=\"application/vnd.oasis.opendocument.text\"/>"
      "<bookmark:groups><bookmark:group>openoffice.org</bookmark:group><bookmark:group>libreoffice</bookmark:group>"
      "<bookmark:group>office</bookmark:group></bookmark:groups><bookmark:applications><bookmark:application "
      "name=\"LibreOffice 7.4\" exec=\"&apos;soffice %u&apos;\" modified=\"2026-11-20T22:11:54.499000Z\" "
      "count=\"2\"/></bookmark:applications></metadata></info></bookmark>"));
  const auto moments = Moments(list.entries.at(0));
  EXPECT_EQ(*std::max_element(moments.begin(), moments.end()), At("2026-11-20T22:11:54.499000Z"));
}

TEST(RecentList, AnEntryOfThePortalIsRead) {
  const RecentList list = ParseRecentList(
      List("<bookmark href=\"file:///home/ana/Plan.ods\" added=\"2026-11-20T22:11:54.1Z\" "
           "modified=\"2026-11-20T22:11:54.2Z\" visited=\"2026-11-20T22:11:54.1Z\"><info><metadata "
           "owner=\"http://freedesktop.org\"><mime:mime-type type=\"application/octet-stream\"/><bookmark:applications>"
           "<bookmark:application name=\"org.example.App\" exec=\"&apos;gio open %u&apos;\" "
           "modified=\"2026-11-20T22:11:54.2Z\" count=\"1\"/></bookmark:applications></metadata></info></bookmark>"));
  EXPECT_EQ(Only(list).mimeType, "application/octet-stream");
}

TEST(RecentList, AnEntryOfCosmicIsReadWithItsFileTimes) {
  const RecentList list = ParseRecentList(
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\" "
      "xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\" "
      "xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\"><bookmark "
      "href=\"file:///home/ana/notes.md\" added=\"2024-03-01T08:00:00.123456789Z\" "
      "modified=\"2026-10-01T08:00:00Z\" visited=\"2026-11-20T08:00:00Z\"><info><metadata "
      "owner=\"http://freedesktop.org\"><mime:mime-type type=\"text/markdown\"/><bookmark:applications>"
      "<bookmark:application name=\"com.system76.CosmicEdit\" exec=\"&apos;cosmic-edit %u&apos;\" "
      "modified=\"2026-10-01T08:00:00Z\" count=\"1\"/></bookmark:applications></metadata></info></bookmark></xbel>");
  EXPECT_TRUE(list.isWellFormed);
  EXPECT_THAT(Moments(Only(list)), UnorderedElementsAre(At("2026-10-01T08:00:00Z"), At("2026-11-20T08:00:00Z")));
}

TEST(RecentList, WithSeveralProgramsEachTimeCounts) {
  const RecentList list = ParseRecentList(
      List("<bookmark href=\"file:///x\" modified=\"2026-11-25T00:00:00Z\" visited=\"2026-11-01T00:00:00Z\"><info>"
           "<metadata owner=\"http://freedesktop.org\"><bookmark:applications>"
           "<bookmark:application name=\"A\" modified=\"2026-11-20T00:00:00Z\" count=\"2\"/>"
           "<bookmark:application name=\"B\" modified=\"2026-11-21T00:00:00Z\" count=\"1\"/>"
           "</bookmark:applications></metadata></info></bookmark>"));
  EXPECT_THAT(Moments(Only(list)),
              ElementsAre(At("2026-11-20T00:00:00Z"), At("2026-11-21T00:00:00Z"), At("2026-11-01T00:00:00Z")))
      << "the entry's own \"modified\" also moves when the entry is renamed";
}

TEST(RecentList, WithoutAProgramTheEntrysModifiedAndAddedCount) {
  const RecentList list = ParseRecentList(
      List("<bookmark href=\"file:///x\" added=\"2026-11-01T00:00:00Z\" modified=\"2026-11-20T00:00:00Z\"/>"));
  EXPECT_THAT(Moments(Only(list)), UnorderedElementsAre(At("2026-11-01T00:00:00Z"), At("2026-11-20T00:00:00Z")));
}

TEST(RecentList, AProgramWithoutATimeIsNoWitness) {
  const RecentList list = ParseRecentList(
      List("<bookmark href=\"file:///x\" modified=\"2026-11-20T00:00:00Z\" visited=\"2026-11-01T00:00:00Z\"><info>"
           "<bookmark:application name=\"A\" count=\"2\"/></info></bookmark>"));
  EXPECT_THAT(Moments(Only(list)), ElementsAre(At("2026-11-20T00:00:00Z")));
}

TEST(RecentList, TheOldFormOfAProgramsTimeIsRead) {
  const RecentList list = ParseRecentList(
      List("<bookmark href=\"file:///x\" added=\"2009-05-08T12:00:00Z\"><info><metadata>"
           "<bookmark:application name=\"A\" timestamp=\"1795218406\" count=\"2\"/></metadata></info></bookmark>"));
  EXPECT_THAT(Moments(Only(list)), ElementsAre(1795218406 * kNanosecondsPerSecond));
}

TEST(RecentList, TimesThatAreMissingOrNoneAreUnknown) {
  for (const char* times :
       {"", "modified=\"\"", "modified=\"garbage\" visited=\"-1\"", "added=\"1970-01-01T00:00:00Z\""}) {
    const RecentList list = ParseRecentList(List("<bookmark href=\"file:///x\" " + std::string(times) + "/>"));
    EXPECT_TRUE(list.isWellFormed) << times;
    EXPECT_THAT(Moments(Only(list)), IsEmpty()) << times;
  }
}

TEST(RecentList, APrivateEntryIsMarked) {
  const RecentList list = ParseRecentList(
      List("<bookmark href=\"file:///x\"><info><metadata owner=\"http://freedesktop.org\"><bookmark:applications/>"
           "<bookmark:private/></metadata></info></bookmark>"));
  EXPECT_TRUE(Only(list).isPrivate);
}

TEST(RecentList, EntitiesAreDecoded) {
  const RecentList list = ParseRecentList(List("<bookmark href=\"file:///a&amp;b&apos;c&#233;&lt;\"/>"));
  EXPECT_EQ(Only(list).href, "file:///a&b'c\xC3\xA9<");
}

TEST(RecentList, AnyPrefixWillDoAndNoneNeedBeDeclared) {
  const RecentList list = ParseRecentList(
      "<xbel><bookmark href=\"file:///x\"><info><metadata><m:mime-type type=\"a/b\"/><b:applications>"
      "<b:application modified=\"2026-11-20T00:00:00Z\"/></b:applications><b:private/></metadata></info></bookmark>"
      "</xbel>");
  EXPECT_TRUE(list.isWellFormed);
  EXPECT_EQ(Only(list).mimeType, "a/b");
  EXPECT_TRUE(Only(list).isPrivate);
  EXPECT_THAT(Moments(Only(list)), ElementsAre(At("2026-11-20T00:00:00Z")));
}

TEST(RecentList, WhatIsUnknownIsPassedOver) {
  const RecentList list = ParseRecentList(List(
      "<!-- <bookmark href=\"file:///comment\"/> --><title>t</title><folder id=\"f\"><title>f</title>" +
      Bookmark("file:///in-folder") +
      "</folder><alias ref=\"f\"/><separator/><bookmark href=\"file:///odd\" flavour=\"sour\"><strange><x/></strange>"
      "<info><metadata owner=\"http://www.kde.org\"><ID>1</ID></metadata></info></bookmark>"));
  EXPECT_TRUE(list.isWellFormed);
  EXPECT_THAT(Addresses(list), ElementsAre("file:///in-folder", "file:///odd"));
}

TEST(RecentList, ADocumentTypeIsPassedOver) {
  const RecentList list = ParseRecentList(
      "<?xml version=\"1.0\"?><!DOCTYPE xbel PUBLIC \"+//IDN python.org//DTD XML Bookmark Exchange Language "
      "1.0//EN//XML\""
      " \"http://www.python.org/topics/xml/dtds/xbel-1.0.dtd\"><xbel><bookmark href=\"file:///x\"/></xbel>");
  EXPECT_THAT(Addresses(list), ElementsAre("file:///x"));
}

TEST(RecentList, AnAddressThatIsThereTwiceIsTwoEntries) {
  const RecentList list = ParseRecentList(List(Bookmark("file:///x") + Bookmark("file:///x")));
  EXPECT_TRUE(list.isWellFormed);
  EXPECT_EQ(list.entries.size(), 2U);
}

TEST(RecentList, AListWithoutEntriesIsWellFormed) {
  for (const std::string& text : {List(""), std::string("<xbel/>"), std::string("<xbel version=\"1.0\"></xbel>\n")}) {
    const RecentList list = ParseRecentList(text);
    EXPECT_TRUE(list.isWellFormed) << text;
    EXPECT_THAT(list.entries, IsEmpty());
  }
}

TEST(RecentList, WhatIsNoListIsNotWellFormed) {
  for (const std::string& text :
       {std::string(), std::string(" \n"), std::string("<?xml version=\"1.0\"?>"), std::string("<html></html>"),
        std::string("garbage"), std::string(100, '\0'), List("") + "<xbel/>", List("") + "rest"}) {
    const RecentList list = ParseRecentList(text);
    EXPECT_FALSE(list.isWellFormed) << text;
    EXPECT_THAT(list.entries, IsEmpty());
  }
}

TEST(RecentList, AListCutAnywhereGivesTheEntriesThatAreWhole) {
  const std::string first = Bookmark("file:///1");
  const std::string second = Bookmark("file:///2");
  const std::string text = List(first + second);
  const auto endOf = [&](const std::string& bookmark) { return text.find(bookmark) + bookmark.size() - 1; };
  for (std::size_t length = 0; length < text.size(); ++length) {
    const RecentList list = ParseRecentList(text.substr(0, length));
    EXPECT_EQ(list.entries.size(), length >= endOf(second) ? 2U : length >= endOf(first) ? 1U : 0U) << length;
    EXPECT_FALSE(list.isWellFormed) << length;
    EXPECT_FALSE(list.isComplete) << length;
  }
}

TEST(RecentList, ADamagedEntryCostsOnlyItself) {
  const std::string sound = Bookmark("file:///damaged");
  const std::vector<std::string> damaged = {
      sound.substr(0, sound.size() / 2),
      sound.substr(0, 20),
      "<bookmark href=\"file:///damaged>\n",
      "<bookmark href=file:///damaged></bookmark>",
      "<bookmark href=\"file:///damaged\" href=\"file:///twice\"></bookmark>",
      "<bookmark href=\"file:///damaged\"><info></bookmark>",
      "<bookmark href=\"file:///damaged\"><title>a < b</title></bookmark>",
      "</bookmark>",
      "</info></xbel>",
      "<![CDATA[",
      "<!-- ",
  };
  for (const std::string& text : damaged) {
    const RecentList list = ParseRecentList(List(Bookmark("file:///1") + text + Bookmark("file:///2")));
    EXPECT_THAT(Addresses(list), ElementsAre("file:///1", "file:///2")) << text;
    EXPECT_FALSE(list.isWellFormed) << text;
    EXPECT_TRUE(list.isComplete) << text;
  }
}

TEST(RecentList, AnEntryWithoutContentsIsReadWhateverRubbishFollows) {
  for (const std::string& rubbish : {std::string("< "), std::string(1000, '"'), std::string((1U << 20U) + 1, 'x')})
    EXPECT_THAT(Addresses(ParseRecentList(List("<bookmark href='file:///a\"/>'/>" + rubbish + "&"))),
                ElementsAre("file:///a\"/>"));
}

TEST(RecentList, BrokenCharactersDoNotCostTheEntry) {
  const RecentList list = ParseRecentList(List(
      "<bookmark href=\"file:///a\xFF.txt\"><title>\xC3 & \x01 &nbsp;</title></bookmark>" + Bookmark("file:///2")));
  EXPECT_THAT(Addresses(list), ElementsAre("file:///a\xFF.txt", "file:///2"));
  EXPECT_FALSE(list.isWellFormed);
}

TEST(RecentList, ControlCharactersAsGLibWritesThemAreNoDamage) {
  const RecentList list = ParseRecentList(List("<bookmark href=\"file:///x\"><title>a&#x1b;b</title></bookmark>"));
  EXPECT_TRUE(list.isWellFormed);
  EXPECT_THAT(Addresses(list), ElementsAre("file:///x"));
}

TEST(RecentList, BytesOfAnAddressThatAreNoUtf8MeanThoseBytes) {
  for (const char* name : {"a\xFF\xC3\xA9\xC3z", "\xED\xA0\x80", "a\xE2\x82", "\xC0\xAF"}) {
    const RecentList list = ListOf(std::string("file:///") + name);
    EXPECT_THAT(DocumentPath(Only(list).href), Optional(std::string("/") + name));
    EXPECT_FALSE(list.isWellFormed);
    EXPECT_TRUE(list.isComplete);
  }
}

TEST(RecentList, ControlCharactersOfAnAddressMeanThemselves) {
  const RecentList raw = ListOf("file:///a\x01\x1B");
  EXPECT_THAT(DocumentPath(Only(raw).href), Optional(std::string("/a\x01\x1B")));
  EXPECT_FALSE(raw.isWellFormed);
  const RecentList escaped = ListOf("file:///a&#1;&#x1b;&#10;");
  EXPECT_THAT(DocumentPath(Only(escaped).href), Optional(std::string("/a\x01\x1B\n")));
  EXPECT_TRUE(escaped.isWellFormed) << "GLib writes them this way";
}

TEST(RecentList, ANullCostsNoEntryAndNamesNoDocument) {
  const std::string null(1, '\0');
  const RecentList inAddress = ListOf("file:///a" + null + "b");
  EXPECT_EQ(DocumentPath(Only(inAddress).href), std::nullopt);
  EXPECT_FALSE(inAddress.isWellFormed);
  const RecentList between = ParseRecentList(List(Bookmark("file:///1") + null + Bookmark("file:///2")));
  EXPECT_THAT(Addresses(between), ElementsAre("file:///1", "file:///2"));
  EXPECT_FALSE(between.isWellFormed);
}

TEST(RecentList, AnAmpersandThatStartsNoReferenceStandsForItself) {
  for (const char* odd : {"&", "&.txt", "&nbsp;", "&;", "a&b&amp"}) {
    const RecentList list = ListOf(std::string("file:///") + odd);
    EXPECT_THAT(DocumentPath(Only(list).href), Optional(std::string("/") + odd));
    EXPECT_FALSE(list.isWellFormed) << odd;
  }
}

TEST(RecentList, AReferenceToNoCharacterDoesNotCostTheEntry) {
  for (const char* odd : {"&#;", "&#x;", "&#xZZ;", "&#xD800;", "&#99999999999;", "&#x"})
    EXPECT_EQ(ListOf(std::string("file:///") + odd).entries.size(), 1U) << odd;
}

TEST(RecentList, AByteOrderMarkAndAnyDeclaredEncodingChangeNothing) {
  const std::string list = "<xbel><bookmark href=\"file:///\xC3\xA9\"/></xbel>";
  for (const char* start : {"\xEF\xBB\xBF", "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>",
                            "<?xml version=\"1.0\" encoding=\"UTF-16\"?>", "\n <?xml version=\"1.0\"?>\n"}) {
    const RecentList read = ParseRecentList(start + list);
    EXPECT_EQ(Only(read).href, "file:///\xC3\xA9") << start;
    EXPECT_TRUE(read.isWellFormed) << start;
  }
}

TEST(RecentList, AnEntryOfAbsurdSizeIsPassedOver) {
  const std::string huge =
      "<bookmark href=\"file:///huge\"><title>" + std::string(3'000'000, 'x') + "</title></bookmark>";
  const RecentList list = ParseRecentList(List(Bookmark("file:///1") + huge + Bookmark("file:///2")));
  EXPECT_THAT(Addresses(list), ElementsAre("file:///1", "file:///2"));
  EXPECT_FALSE(list.isWellFormed);
}

TEST(RecentList, ATagWithThousandsOfAttributesIsPassedOver) {
  std::string absurd = "<bookmark href=\"file:///absurd\"";
  for (int i = 0; i < 60'000; ++i) absurd += " a" + std::to_string(i) + "=''";
  const RecentList list = ParseRecentList(List(Bookmark("file:///1") + absurd + "/>" + Bookmark("file:///2")));
  EXPECT_THAT(Addresses(list), ElementsAre("file:///1", "file:///2"));
}

TEST(RecentList, ElementsNestedWithoutEndAreRefused) {
  std::string nested;
  for (int i = 0; i < 500'000; ++i) nested += "<a>";
  const RecentList list = ParseRecentList(std::string(kStart) + Bookmark("file:///1") + nested);
  EXPECT_THAT(Addresses(list), ElementsAre("file:///1"));
}

TEST(RecentList, AnEntryOfElementsNestedAHundredThousandDeepIsPassedOver) {
  std::string starts;
  std::string ends;
  for (int i = 0; i < 100'000; ++i) {
    starts += "<a>";
    ends += "</a>";
  }
  const std::string deep = "<bookmark href=\"file:///deep\">" + starts + ends + "</bookmark>";
  const RecentList list = ParseRecentList(List(Bookmark("file:///1") + deep + Bookmark("file:///2")));
  EXPECT_THAT(Addresses(list), ElementsAre("file:///1", "file:///2"));
  EXPECT_FALSE(list.isWellFormed);
}

TEST(RecentList, AListOfMillionsOfElementsIsReadEntryByEntry) {
  std::string elements;
  for (int i = 0; i < 2'000'000; ++i) elements += "<a/>";
  const RecentList list = ParseRecentList(List(Bookmark("file:///1") + elements + Bookmark("file:///2")));
  EXPECT_THAT(Addresses(list), ElementsAre("file:///1", "file:///2"));
  EXPECT_FALSE(list.isWellFormed) << "no program writes such a list";
}

TEST(RecentList, EntitiesThatGrowAreNotExpanded) {
  const RecentList list = ParseRecentList(
      "<!DOCTYPE xbel [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\">]>"
      "<xbel><bookmark href=\"file:///&b;\"/></xbel>");
  EXPECT_THAT(Addresses(list), ElementsAre("file:///&b;"));
}

TEST(RecentList, TenTimesAsManyDamagedEntriesAreNotAHundredTimesTheWork) {
  EXPECT_LT(MemoryForDamagedEntries(10'000), 20 * MemoryForDamagedEntries(1'000)) << "each byte is read a few times";
}

}  // namespace
}  // namespace dayvane::recent
