// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "linux/recent/RecentState.h"

namespace dayvane::recent {
namespace {

RecentState Example() {
  RecentState state;
  RecentDocument& report = state.documents["/home/ana/Report.odt"];
  report.name = "Report.odt.lnk";
  report.seen = 1795218316110428000;
  report.written = 1795218316110428000;
  report.isCaptured = true;
  RecentDocument& odd = state.documents["/home/ana/100%\tno\nname \xC3\xA9"];
  odd.name = "100%\tno\nname \xC3\xA9.lnk";
  odd.seen = 3;
  odd.pending = {2, 3};
  odd.futureFrom = 5;
  odd.futureTo = 6;
  odd.isToBeCleared = true;
  odd.told["the list of\tan editor"] = {5, 9, "org.kde.50%"};
  odd.told["another"] = {6, 0, ""};
  state.memories = {{"the list of\tan editor", "1\n2"}, {"another", ""}};
  state.programs.Add("text/plain", {8, "An\teditor"});
  RecentDocument& unspellable = state.documents["/home/ana/\xFF\xFE"];
  unspellable.isUnlinkable = true;
  state.forgotten = {7, 2, {0x1, 0xABCD}};
  state.isEmptied = true;
  return state;
}

TEST(RecentState, WhatIsWrittenIsReadBack) {
  const RecentState state = Example();
  const StateReading reading = ReadState(WriteState(state));
  EXPECT_FALSE(reading.isDamaged);
  EXPECT_EQ(reading.state.documents, state.documents);
  EXPECT_EQ(reading.state.forgotten, state.forgotten);
  EXPECT_EQ(reading.state.memories, state.memories);
  EXPECT_EQ(reading.state.programs, state.programs);
  EXPECT_TRUE(reading.state.isEmptied);
}

TEST(RecentState, TheFormIsTheDocumentedOne) {
  RecentState state;
  RecentDocument& document = state.documents["/a/50%"];
  document.name = "50%.lnk";
  document.seen = 9;
  document.written = 8;
  document.isCaptured = true;
  document.pending = {9};
  EXPECT_EQ(WriteState(state), "dayvane-recent 1\ndocument\t9\t8\tc\t-\t9\t50%25.lnk\t/a/50%25\nend\t1\n");
}

TEST(RecentState, AStateCutAnywhereIsDamagedAndGivesOnlyWholeDocuments) {
  const RecentState state = Example();
  const std::string text = WriteState(state);
  for (std::size_t length = 0; length < text.size(); ++length) {
    const StateReading reading = ReadState(text.substr(0, length));
    EXPECT_TRUE(reading.isDamaged) << length;
    for (const auto& [path, document] : reading.state.documents) {
      ASSERT_TRUE(state.documents.contains(path)) << length;
      EXPECT_EQ(document, state.documents.at(path)) << length;
    }
  }
}

TEST(RecentState, WhatFollowsADamagedLineStillCounts) {
  std::string text = WriteState(Example());
  text.insert(text.find("document"), "document\tx\n");
  const StateReading reading = ReadState(text);
  EXPECT_TRUE(reading.isDamaged);
  EXPECT_EQ(reading.state.documents, Example().documents);
}

TEST(RecentState, GarbageIsAnEmptyState) {
  for (const std::string& garbage : {std::string(), std::string("\0\0\0\0", 4),
                                     std::string("dayvane-recent 2\nend\t0\n"), std::string(1000, '\xFF')}) {
    const StateReading reading = ReadState(garbage);
    EXPECT_TRUE(reading.isDamaged);
    EXPECT_TRUE(reading.state.documents.empty());
  }
}

TEST(RecentState, LinesThatCouldDoHarmAreRefused) {
  for (const char* line : {"document\t1\t1\t-\t-\t-\t../../evil.lnk\t/a",
                           "document\t1\t1\t-\t-\t-\tevil.txt\t/a",
                           "document\t1\t1\t-\t-\t-\t.hidden.lnk\t/a",
                           "document\t1\t1\t-\t-\t-\ta.lnk\trelative",
                           "document\t-5\t1\t-\t-\t-\ta.lnk\t/a",
                           "document\t1\t1\t-\t-\t1,,2\ta.lnk\t/a",
                           "document\t1\t1\t?\t-\t-\ta.lnk\t/a",
                           "document\t1\t1\t-\t1\t-\ta.lnk\t/a",
                           "document\t1\t1\t-\t0:0\t-\ta.lnk\t/a",
                           "document\t1\t1\t-\t2:1\t-\ta.lnk\t/a",
                           "document\t1\t1\t-\tx:1\t-\ta.lnk\t/a",
                           "document\t1\t1\t-\t-\t-\ta%2.lnk\t/a",
                           "document\t1\t1\t-\t-\t-\ta.lnk\t/a%",
                           "document\t1\t1\t-\t-\t-\ta.lnk\t/a%00",
                           "document\t99999999999999999999\t1\t-\t-\t-\ta.lnk\t/a",
                           "forgotten\t1\t9999999\t-",
                           "forgotten\t1\t1\t12345",
                           "forgotten\t0\t1\t-",
                           "document\t1\t1\t-\t-\t-\ta.lnk\t/a\tKDE\t1\t0",
                           "document\t1\t1\t-\t-\t-\ta.lnk\t/a\tKDE\tx\t0\tokular",
                           "document\t1\t1\t-\t-\t-\ta.lnk\t/a\tKDE\t1\t0\tokular\tKDE\t1\t0\tokular",
                           "source\tKDE\t%0",
                           "unknown",
                           ""}) {
    const StateReading reading = ReadState("dayvane-recent 1\n" + std::string(line) + "\nend\t0\n");
    EXPECT_TRUE(reading.isDamaged) << line;
    EXPECT_TRUE(reading.state.documents.empty()) << line;
  }
}

TEST(RecentState, AControlCharacterThatIsNotEscapedIsRefused) {
  for (const char control : {'\0', '\1', '\r', '\x7F'})
    for (const char* line : {"document\t1\t1\t-\t-\t-\ta?.lnk\t/a", "document\t1\t1\t-\t-\t-\ta.lnk\t/a?b"}) {
      std::string text = line;
      text[text.find('?')] = control;
      const StateReading reading = ReadState("dayvane-recent 1\n" + text + "\nend\t0\n");
      EXPECT_TRUE(reading.isDamaged) << line;
      EXPECT_TRUE(reading.state.documents.empty()) << line;
    }
}

TEST(RecentState, APathOrANameStandsForOneDocument) {
  const std::string text =
      "dayvane-recent 1\n"
      "document\t1\t1\t-\t-\t-\ta.lnk\t/a\n"
      "document\t2\t2\t-\t-\t-\tb.lnk\t/a\n"
      "document\t3\t3\t-\t-\t-\tA.LNK\t/c\n"
      "end\t1\n";
  const StateReading reading = ReadState(text);
  EXPECT_TRUE(reading.isDamaged);
  ASSERT_EQ(reading.state.documents.size(), 1U);
  EXPECT_EQ(reading.state.documents.at("/a").name, "a.lnk");
}

}  // namespace
}  // namespace dayvane::recent
