// SPDX-License-Identifier: MIT

// A state that is damaged, by accident or on purpose. These tests find more under the sanitizers.

#include <filesystem>
#include <gmock/gmock.h>
#include <random>

#include "linux/recent/RecentState.h"
#include "tests/linux/recent/RecentDesk.h"

namespace dayvane::recent {
namespace {

using testing::ReadFile;
using testing::RecentDesk;
using Documents = std::map<std::string, std::string>;

/// The list at the end of a week: two documents of one name, one with an odd name, one opened on two days.
const Documents kWeek{{"/home/ana/Report.odt", "2026-11-20T08:00:00.5Z"},
                      {"/home/ana/old/Report.odt", "2026-11-20T09:00:00Z"},
                      {"/home/ana/100%\tno\nname", "2026-11-21T08:00:00Z"},
                      {"/home/ana/Plan.txt", "2026-11-22T08:00:00Z"}};

/// The state as it stands between two polls, with an opening that is not captured yet.
std::string Lived(RecentDesk& desk) {
  desk.PutDocuments({{"/home/ana/Plan.txt", "2026-11-19T08:00:00Z"}});
  desk.Poll();
  desk.PutDocuments(kWeek);
  desk.Poll();
  return ReadFile(desk.m_state);
}

void PutState(RecentDesk& desk, const std::string& text) {
  desk.m_folder.Write("state/recent.txt", text);
  desk.Start();
}

/// Whatever the text is: reading it ends, and what was read can be written and read again.
void ExpectSurvives(const std::string& text) {
  const RecentState state = ReadState(text).state;
  const StateReading again = ReadState(WriteState(state));
  EXPECT_FALSE(again.isDamaged) << text;
  EXPECT_EQ(again.state.documents, state.documents) << text;
}

TEST(RecentStateDamage, AStateCutAtAnyByteLosesNoOpeningAndDoublesNoShortcut) {
  RecentDesk desk;
  const std::string state = Lived(desk);
  const auto shortcuts = desk.Shortcuts();
  const auto filed = desk.Filed();
  ASSERT_EQ(filed.size(), kWeek.size() + 1);
  for (std::size_t length = 0; length < state.size(); ++length) {
    PutState(desk, state.substr(0, length));
    desk.Poll();
    ASSERT_EQ(desk.Shortcuts(), shortcuts) << length;
    ASSERT_EQ(desk.Filed(), filed) << length;
    ASSERT_FALSE(ReadState(ReadFile(desk.m_state)).isDamaged) << length;
  }
}

TEST(RecentStateDamage, AfterAStateCutAtAnyByteTheNextOpeningIsFiled) {
  for (std::size_t part = 0; part < 20; ++part) {
    RecentDesk desk;
    const std::string state = Lived(desk);
    PutState(desk, state.substr(0, state.size() * part / 20));
    Documents list = kWeek;
    list["/home/ana/old/Report.odt"] = "2026-11-23T09:00:00Z";
    desk.PutDocuments(list);
    // The first finds out whose shortcuts these are; only when it has captured them may the next opening take one's
    // place.
    desk.Poll();
    desk.Poll();
    EXPECT_EQ(desk.Shortcuts().size(), kWeek.size()) << part;
    EXPECT_THAT(desk.Filed(), ::testing::Contains("/home/ana/old/Report.odt 2026-11-23")) << part;
    EXPECT_EQ(desk.Filed().size(), kWeek.size() + 2) << part;
  }
}

TEST(RecentStateDamage, FlippedBitsAreSurvived) {
  RecentDesk desk;
  const std::string state = Lived(desk);
  std::mt19937 random(20261121);
  for (int i = 0; i < 10'000; ++i) {
    std::string text = state;
    for (std::size_t flips = 1 + random() % 8; flips > 0; --flips) {
      char& byte = text[random() % text.size()];
      byte = static_cast<char>(byte ^ 1 << random() % 8);
    }
    ExpectSurvives(text);
  }
}

TEST(RecentStateDamage, AnExtremeNumberInAnyPlaceIsSurvived) {
  RecentDesk desk;
  const std::string state = Lived(desk);
  for (std::size_t field = state.find('\t'); field != std::string::npos; field = state.find('\t', field + 1))
    for (const char* number :
         {"0", "1", "9223372036854775806", "9223372036854775807", "9223372036854775807:0", "0,1,9223372036854775807"}) {
      std::string text = state;
      text.replace(field + 1, text.find_first_of("\t\n", field + 1) - field - 1, number);
      ExpectSurvives(text);
      PutState(desk, text);
      desk.Poll();
      EXPECT_TRUE(std::filesystem::exists(desk.Shortcut("Plan.txt.lnk"))) << text;
    }
}

}  // namespace
}  // namespace dayvane::recent
