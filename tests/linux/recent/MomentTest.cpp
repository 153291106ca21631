// SPDX-License-Identifier: MIT
#include <QString>
#include <gtest/gtest.h>
#include <limits>

#include "linux/recent/Moment.h"
#include "tests/support/System.h"

namespace dayvane::recent {
namespace {

constexpr Moment kSecond = kNanosecondsPerSecond;
constexpr Moment kExample = 1795218316 * kSecond;  // 2026-11-20T23:45:16Z

TEST(Moment, MicrosecondsAreKept) {
  EXPECT_EQ(ParseIsoMoment(u"2026-11-20T23:45:16.110424Z"), kExample + 110'424'000);
  EXPECT_EQ(ParseIsoMoment(u"2026-11-20T23:45:16.5Z"), kExample + 500'000'000);
  EXPECT_EQ(ParseIsoMoment(u"2026-11-20T23:45:16.999999999999Z"), kExample + 999'999'999);
}

TEST(Moment, WholeSecondsOfOlderProgramsAreRead) {
  EXPECT_EQ(ParseIsoMoment(u"2026-11-20T23:45:16Z"), kExample);
}

TEST(Moment, OffsetsAreReckonedToUtc) {
  EXPECT_EQ(ParseIsoMoment(u"2026-11-21T01:45:16+02:00"), kExample);
  EXPECT_EQ(ParseIsoMoment(u"2026-11-20T19:15:16.25-0430"), kExample + kSecond / 4);
  EXPECT_EQ(ParseIsoMoment(u"2026-11-21T01:45:16+02"), kExample);
}

TEST(Moment, ADateWithoutZoneIsTheUsersLocalTime) {
  const testing::LocalZone zone("Asia/Tokyo");
  EXPECT_EQ(ParseIsoMoment(u"2026-11-21T08:45:16"), kExample);
}

TEST(Moment, SecondsSince1970AreRead) {
  EXPECT_EQ(ParseEpochMoment(u"1795218316"), kExample);
}

TEST(Moment, TextsThatAreNoDateGiveNone) {
  for (const char16_t* text : {u"", u"-1", u"now", u"2026-13-40T00:00:00Z", u"2026-11-20T23:45:16Zx", u"16.110424"})
    EXPECT_EQ(ParseIsoMoment(text), std::nullopt) << QStringView(text).toString().toStdString();
  for (const char16_t* text : {u"", u"-1", u"12x", u"99999999999999999999"})
    EXPECT_EQ(ParseEpochMoment(text), std::nullopt) << QStringView(text).toString().toStdString();
}

TEST(Moment, DatesBefore1990AreNone) {
  EXPECT_EQ(ParseIsoMoment(u"1989-12-31T23:59:59.999999Z"), std::nullopt);
  EXPECT_EQ(ParseIsoMoment(u"1970-01-01T00:00:00Z"), std::nullopt);
  EXPECT_EQ(ParseEpochMoment(u"0"), std::nullopt);
  EXPECT_EQ(ParseIsoMoment(u"1990-01-01T00:00:00Z"), 631152000 * kSecond);
}

TEST(Moment, ADateBeyondTheScaleIsItsEnd) {
  EXPECT_EQ(ParseIsoMoment(u"9999-12-31T23:59:59.999999Z"), std::numeric_limits<Moment>::max());
  EXPECT_EQ(ParseEpochMoment(u"999999999999999"), std::numeric_limits<Moment>::max());
}

TEST(Moment, ADayIsThatOfTheUsersCalendar) {
  const Moment evening = ParseIsoMoment(u"2026-11-20T22:30:00Z").value();
  const Moment night = ParseIsoMoment(u"2026-11-20T23:30:00Z").value();
  {
    const testing::LocalZone zone("UTC");
    EXPECT_TRUE(OnSameLocalDay(evening, night));
  }
  const testing::LocalZone zone("Europe/Berlin");
  EXPECT_FALSE(OnSameLocalDay(evening, night));
}

TEST(Moment, TheExtremesOfTheScaleHaveADay) {
  const testing::LocalZone zone("UTC");
  EXPECT_FALSE(OnSameLocalDay(std::numeric_limits<Moment>::min(), std::numeric_limits<Moment>::max()));
}

}  // namespace
}  // namespace dayvane::recent
