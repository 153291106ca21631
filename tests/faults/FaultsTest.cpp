// SPDX-License-Identifier: MIT

// The disk fails at any moment while the program files, saves, purges and stores its settings.

#include <cstdlib>
#include <gmock/gmock.h>
#include <numeric>

#include "tests/faults/Faults.h"
#include "tests/faults/FaultyDesk.h"

namespace dayvane::faults {
namespace {

using ::testing::IsEmpty;

/// All seeds, or the one that the environment names.
std::vector<unsigned> Seeds() {
  constexpr unsigned kSeeds = 300;
  if (const char* one = std::getenv("DAYVANE_FAULT_SEED")) return {static_cast<unsigned>(std::atoi(one))};
  std::vector<unsigned> seeds(kSeeds);
  std::iota(seeds.begin(), seeds.end(), 1U);
  return seeds;
}

/// Few faults leave much undone, many leave little done.
float ProbabilityOf(unsigned seed) {
  constexpr float kProbabilities[] = {0.002F, 0.01F, 0.05F};
  return kProbabilities[seed % std::size(kProbabilities)];
}

void LiveWell(FaultyDesk& desk) {
  desk.Open("Page 1.txt", "2026-11-18T08:00:00Z");
  desk.Open("Page 2.txt", "2026-11-18T09:00:00Z");
  Session session(desk);
  desk.Open("Page 1.txt", "2026-11-19T08:00:00Z");
  session.Poll();
  session.End();
}

void LiveWithFaults(FaultyDesk& desk, unsigned seed) {
  auto withFaults = [&, part = 0U](auto&& work) mutable {
    const Faults faults(seed * 10 + part++, ProbabilityOf(seed));
    work();
  };
  desk.FileLongAgo("Page 0.txt");
  desk.Open("Page 2.txt", "2026-11-19T10:00:00Z");
  std::unique_ptr<Session> session;
  withFaults([&] { session = std::make_unique<Session>(desk); });
  desk.Open("Page 1.txt", "2026-11-20T08:00:00Z");
  desk.Open("Page 3.txt", "2026-11-20T09:00:00Z");
  withFaults([&] { session->Poll(); });
  desk.Open("Page 3.txt", "2026-11-20T09:30:00Z");
  desk.Open("Page 4.txt", "2026-11-21T11:00:00Z");
  withFaults([&] {
    session->Poll();
    session->Poll();
    session->End();
    session.reset();
  });
}

/// The next start, and polls until everything has had its turn.
void Recover(FaultyDesk& desk) {
  Session session(desk);
  for (int poll = 0; poll < 3; ++poll) session.Poll();
  session.End();
}

TEST(Faults, WithoutAnyFaultNothingIsLost) {
  FaultyDesk desk;
  LiveWell(desk);
  EXPECT_THAT(desk.Losses(), IsEmpty());
  EXPECT_THAT(desk.Damage(), IsEmpty());
}

TEST(Faults, NoFaultLeavesAFileInPartOrTouchesADocument) {
  for (const unsigned seed : Seeds()) {
    FaultyDesk desk;
    LiveWell(desk);
    LiveWithFaults(desk, seed);
    EXPECT_THAT(desk.Damage(), IsEmpty()) << "seed " << seed;
  }
}

TEST(Faults, TheNextStartFilesAndCountsWhatFaultsLeftUndone) {
  for (const unsigned seed : Seeds()) {
    FaultyDesk desk;
    LiveWell(desk);
    LiveWithFaults(desk, seed);
    Recover(desk);
    EXPECT_THAT(desk.Losses(), IsEmpty()) << "seed " << seed;
    EXPECT_THAT(desk.Damage(), IsEmpty()) << "seed " << seed;
  }
}

}  // namespace
}  // namespace dayvane::faults
