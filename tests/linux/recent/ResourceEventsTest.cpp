// SPDX-License-Identifier: MIT
#include <climits>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "linux/recent/ResourceEvents.h"

namespace dayvane::recent {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr std::int64_t kTen = 1795255200;  // 2026-11-21 10:00 UTC
constexpr std::int64_t kMinute = 60;
constexpr std::int64_t kAnHour = 60 * kMinute;

/// The openings that rows 1, 2, … tell of, as "PROGRAM PATH SECONDS-AFTER-TEN".
std::vector<std::string> ToldBy(std::vector<ResourceEvent> events, std::int64_t known = 0) {
  for (std::size_t i = 0; i < events.size(); ++i) events[i].row = static_cast<std::int64_t>(i) + 1;
  std::vector<std::string> told;
  for (const Opening& opening : OpeningsOf(events, known))
    told.push_back(opening.program + " " + opening.path + " " +
                   std::to_string(opening.moment / kNanosecondsPerSecond - kTen));
  return told;
}

ResourceEvent Row(const std::string& agent, const std::string& resource, std::optional<std::int64_t> start,
                  std::optional<std::int64_t> end = std::nullopt) {
  return {0, agent, resource, start, end};
}

TEST(ResourceEvents, TwoAgentsOfOneOpeningAreOneInEitherOrder) {
  const auto program = Row("okular", "/a.pdf", kTen + 1);
  const auto part = Row("okularApplication_pdf", "/a.pdf", kTen);
  EXPECT_THAT(ToldBy({program, part}), ElementsAre("okular /a.pdf 0"));
  EXPECT_THAT(ToldBy({part, program}), ElementsAre("okularApplication_pdf /a.pdf 0"));
}

TEST(ResourceEvents, FourRowsOfOneOpeningAreOne) {
  const auto row = Row("org.kde.gwenview", "/a.png", kTen);
  EXPECT_THAT(ToldBy({row, Row("gwenview", "/a.png", kTen), row, row}), SizeIs(1));
}

TEST(ResourceEvents, TheSameDocumentAMinuteLaterIsOpenedAgain) {
  EXPECT_THAT(ToldBy({Row("kate", "/a", kTen), Row("kate", "/a", kTen + kMinute)}), SizeIs(1));
  EXPECT_THAT(ToldBy({Row("kate", "/a", kTen), Row("kate", "/a", kTen + kMinute + 1)}), SizeIs(2));
}

TEST(ResourceEvents, TwoProgramsMakeTwoOpenings) {
  EXPECT_THAT(ToldBy({Row("kate", "/a", kTen), Row("kwrite", "/a", kTen)}), ElementsAre("kate /a 0", "kwrite /a 0"));
}

TEST(ResourceEvents, AnOpeningOfWhichOneRowIsKnownIsKnown) {
  const auto row = Row("okular", "/a.pdf", kTen);
  EXPECT_THAT(ToldBy({row, row, row}, 1), IsEmpty());
  EXPECT_THAT(ToldBy({row, Row("okular", "/a.pdf", kTen + kAnHour)}, 1), ElementsAre("okular /a.pdf 3600"));
}

TEST(ResourceEvents, WhatIsNoPathIsLeftOut) {
  for (const char* resource :
       {"", "a.txt", "applications:kate.desktop", "https://example.org/a", "file:///a", "/", "//"})
    EXPECT_THAT(ToldBy({Row("kate", resource, kTen)}), IsEmpty()) << resource;
  EXPECT_THAT(ToldBy({Row("kate", std::string("/a\0b", 4), kTen)}), IsEmpty());
  EXPECT_THAT(ToldBy({Row("kate", "/" + std::string(PATH_MAX - 1, 'a'), kTen)}), IsEmpty());
  EXPECT_THAT(ToldBy({Row("kate", "/" + std::string(PATH_MAX - 2, 'a'), kTen)}), SizeIs(1));
}

TEST(ResourceEvents, OddPathsAreKeptByteForByte) {
  for (const char* path : {"/two\nlines", "/not \xff UTF-8", "/home/../a", "/100% #1?"})
    EXPECT_THAT(ToldBy({Row("kate", path, kTen)}), ElementsAre("kate " + std::string(path) + " 0"));
}

TEST(ResourceEvents, PathsAreSpeltAsTheListOfRecentDocumentsHasThem) {
  EXPECT_THAT(ToldBy({Row("kate", "//home//ana/a/", kTen)}), ElementsAre("kate /home/ana/a 0"));
}

TEST(ResourceEvents, ARowWithoutAStartWasUsedWhenItEnded) {
  for (const auto start :
       {std::optional<std::int64_t>(), std::optional<std::int64_t>(-5), std::optional<std::int64_t>(0)})
    EXPECT_THAT(ToldBy({Row("kate", "/a", start, kTen)}), ElementsAre("kate /a 0"));
}

TEST(ResourceEvents, ARowWithoutAnyMomentSaysNothing) {
  EXPECT_THAT(ToldBy({Row("kate", "/a", std::nullopt), Row("kate", "/a", 1), Row("kate", "/a", INT64_MIN, INT64_MIN)}),
              IsEmpty());
}

TEST(ResourceEvents, AMomentBeyondAllYearsIsTheLastThereIs) {
  const auto openings = OpeningsOf({{1, "kate", "/a", INT64_MAX, {}}}, 0);
  ASSERT_THAT(openings, SizeIs(1));
  EXPECT_EQ(openings[0].moment, INT64_MAX);
}

TEST(ResourceEvents, ADocumentOfVeryManyRowsTakesNoVeryLongTime) {
  std::vector<ResourceEvent> events;
  for (std::int64_t i = 0; i < 200'000; ++i) events.push_back(Row("kate", "/a", kTen + 100 * i));
  EXPECT_THAT(ToldBy(std::move(events)), SizeIs(200'000));
}

TEST(ResourceEvents, TheLatestOpeningOfEachDocumentIsTold) {
  const auto latest = LatestOfEach({{"/a", 1, "x", ""}, {"/b", 5, "x", ""}, {"/a", 3, "y", ""}, {"/a", 2, "z", ""}});
  ASSERT_THAT(latest, SizeIs(2));
  EXPECT_EQ(latest[0].moment, 3);
  EXPECT_EQ(latest[0].program, "y");
  EXPECT_EQ(latest[1].path, "/b");
}

/// How many seconds after ten a use of Kate began that reached up to a moment; nothing when the rows do not tell.
std::optional<std::int64_t> Began(const std::vector<ResourceEvent>& events, std::int64_t secondsAfterTen) {
  const auto moment = BeginningOf(events, {"/a", (kTen + secondsAfterTen) * kNanosecondsPerSecond, "kate", ""});
  return moment ? std::optional(*moment / kNanosecondsPerSecond - kTen) : std::nullopt;
}

TEST(ResourceEvents, AUseCoversItsEndAndAMinuteMore) {
  const std::vector rows = {Row("kate", "/a", kTen, kTen + kAnHour)};
  EXPECT_EQ(Began(rows, 0), 0);
  EXPECT_EQ(Began(rows, kAnHour), 0);
  EXPECT_EQ(Began(rows, kAnHour + kMinute), 0);
  EXPECT_EQ(Began(rows, kAnHour + kMinute + 1), std::nullopt);
}

TEST(ResourceEvents, AUseThatBeganLaterTellsOfNoBeginning) {
  const std::vector rows = {Row("kate", "/a", kTen, kTen + kAnHour)};
  EXPECT_EQ(Began(rows, -kMinute - 1), std::nullopt);
  EXPECT_EQ(Began(rows, -kMinute), -kMinute) << "a beginning is not after its end";
}

TEST(ResourceEvents, TheUseThatBeganLastCounts) {
  // Kate was killed in the first use; closing the document in the second ended both rows.
  const auto end = kTen + 96 * kAnHour;
  EXPECT_EQ(Began({Row("kate", "/a", kTen, end), Row("kate", "/a", kTen + 95 * kAnHour, end)}, 96 * kAnHour),
            95 * kAnHour);
}

TEST(ResourceEvents, AUseThatNothingEndedLastsADayAtMost) {
  const std::vector rows = {Row("kate", "/a", kTen)};
  EXPECT_EQ(Began(rows, 24 * kAnHour), 0);
  EXPECT_EQ(Began(rows, 24 * kAnHour + 1), std::nullopt);
}

TEST(ResourceEvents, ADialogWithinAUseIsNoBeginning) {
  const auto dialog = kTen + kAnHour;
  EXPECT_EQ(Began({Row("kate", "/a", kTen), Row("kate", "/a", dialog, dialog)}, kAnHour), 0);
  EXPECT_EQ(Began({Row("kate", "/a", dialog, dialog)}, kAnHour), std::nullopt);
}

TEST(ResourceEvents, ThePartsOfAProgramBeganItsUseTogether) {
  const auto end = kTen + kAnHour;
  EXPECT_EQ(Began({Row("kateApplication_x", "/a", kTen, end), Row("org.kde.Kate", "/a", kTen + 2, end)}, kAnHour), 0);
}

}  // namespace
}  // namespace dayvane::recent
