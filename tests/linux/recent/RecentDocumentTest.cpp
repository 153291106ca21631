// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "linux/recent/RecentDocument.h"
#include "tests/support/System.h"

namespace dayvane::recent {
namespace {

using ::testing::ElementsAre;
using ::testing::Optional;

constexpr Moment kDay = 86'400 * kNanosecondsPerSecond;
constexpr Moment kNow = 20'000 * kDay;

TEST(RecentDocument, ADocumentIsOpenedAtTheLatestOfItsTimes) {
  RecentDocument document;
  EXPECT_THAT(TakeNewOpening(document, {kNow - 3, kNow - 1, kNow - 2}, kNow), Optional(kNow - 1));
}

TEST(RecentDocument, AnOpeningCountsOnce) {
  RecentDocument document;
  TakeNewOpening(document, {kNow - 5}, kNow);
  EXPECT_EQ(TakeNewOpening(document, {kNow - 5}, kNow), std::nullopt);
  EXPECT_EQ(TakeNewOpening(document, {kNow - 6}, kNow), std::nullopt);
  EXPECT_THAT(TakeNewOpening(document, {kNow - 4}, kNow), Optional(kNow - 4));
}

TEST(RecentDocument, AnUnknownTimeCountsAsTheMomentItWasFirstSeen) {
  RecentDocument document;
  EXPECT_THAT(TakeNewOpening(document, {}, kNow), Optional(kNow));
  EXPECT_EQ(TakeNewOpening(document, {}, kNow + kDay), std::nullopt);
}

TEST(RecentDocument, ATimeThatBecomesUnknownIsNoOpening) {
  RecentDocument document;
  TakeNewOpening(document, {kNow - 5}, kNow);
  EXPECT_EQ(TakeNewOpening(document, {}, kNow + kDay), std::nullopt);
}

TEST(RecentDocument, ATimeInTheFutureCountsAsTheMomentItWasFirstSeenOnce) {
  RecentDocument document;
  const Moment future = kNow + 10 * kDay;
  EXPECT_THAT(TakeNewOpening(document, {future}, kNow), Optional(kNow));
  EXPECT_EQ(TakeNewOpening(document, {future}, kNow + kDay), std::nullopt);
  EXPECT_EQ(TakeNewOpening(document, {future}, future + kDay), std::nullopt);
}

TEST(RecentDocument, AllTimesOfAFutureOpeningAreCountedTogether) {
  RecentDocument document;
  const Moment future = kNow + 10 * kDay;
  TakeNewOpening(document, {future, future + 3, future + 1}, kNow);
  EXPECT_EQ(TakeNewOpening(document, {future, future + 3, future + 1}, future + 2), std::nullopt);
  EXPECT_EQ(TakeNewOpening(document, {future, future + 3, future + 1}, future + kDay), std::nullopt);
}

TEST(RecentDocument, OpeningsGoOnWhileAnotherTimeStaysInTheFuture) {
  RecentDocument document;
  const Moment future = kNow + 10 * kDay;
  TakeNewOpening(document, {future, future + 1}, kNow);
  EXPECT_THAT(TakeNewOpening(document, {future, kNow + 5}, kNow + 6), Optional(kNow + 5));
  EXPECT_EQ(TakeNewOpening(document, {future, kNow + 5}, future + kDay), std::nullopt);
}

TEST(RecentDocument, ALaterTimeInTheFutureIsAnotherOpening) {
  RecentDocument document;
  TakeNewOpening(document, {kNow + 10 * kDay}, kNow);
  EXPECT_THAT(TakeNewOpening(document, {kNow + 11 * kDay}, kNow + kDay), Optional(kNow + kDay));
}

TEST(RecentDocument, AKnownOpeningIsNotInTheFutureWhenTheClockIsSetBack) {
  RecentDocument document;
  TakeNewOpening(document, {kNow}, kNow);
  EXPECT_EQ(TakeNewOpening(document, {kNow}, kNow - 100 * kDay), std::nullopt);
}

TEST(RecentDocument, PendingOpeningsAreOneADay) {
  const testing::LocalZone zone("UTC");
  RecentDocument document;
  for (const Moment opening : {kNow, kNow + 5, kNow + kDay, kNow + kDay + 7, kNow + 3 * kDay})
    AddPending(document, opening);
  EXPECT_THAT(document.pending, ElementsAre(kNow + 5, kNow + kDay + 7, kNow + 3 * kDay));
}

TEST(RecentDocument, PendingOpeningsHaveABound) {
  const testing::LocalZone zone("UTC");
  RecentDocument document;
  for (int day = 0; day < 5000; ++day) AddPending(document, kNow + day * kDay);
  EXPECT_LE(document.pending.size(), 1000U);
  EXPECT_EQ(document.pending.back(), kNow + 4999 * kDay);
}

}  // namespace
}  // namespace dayvane::recent
