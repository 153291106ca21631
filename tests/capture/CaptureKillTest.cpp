// SPDX-License-Identifier: MIT
#include <filesystem>
#include <functional>
#include <gmock/gmock.h>
#include <set>

#include "tests/support/ProgramRuns.h"

/// The program may be killed between any two changes that it makes to the disk: no document is lost and no day is
/// counted twice or not at all.
namespace dayvane {
namespace {

namespace fs = std::filesystem;
using testing::Killed;
using testing::ProgramRuns;
using Step = std::function<void(ProgramRuns&)>;

constexpr const char* kOldRecord = "40,#2026-11-01 10:00:00#,\"Z:\\x.lnk\",\"a.odt\",\"z:\\home\\ana\",\"\",\"\",0\r\n";

void Open(ProgramRuns& computer, const std::string& name, const std::string& time) {
  computer.desktop.OpenDocument("Z:\\home\\ana\\" + name, time);
}

/// A step during which the program may be killed; then it is started again.
Step Killable(std::function<void(ProgramRuns&)> act) {
  return [act = std::move(act)](ProgramRuns& computer) {
    try {
      act(computer);
    } catch (const Killed&) {
      computer.LetLive();
      computer.Start();
    }
  };
}

/// Two days of work: openings before a start and while the program runs, again on the same day, on two days at once,
/// an end and a new start.
std::vector<Step> WorkSteps() {
  const auto tick = Killable([](ProgramRuns& computer) { computer.Window().tmrMain.Fire(); });
  const auto start = Killable([](ProgramRuns& computer) { computer.Start(); });
  return {
      [](ProgramRuns& computer) { Open(computer, "a.odt", "2026-11-19 09:00:00"); },
      start,
      [](ProgramRuns& computer) { Open(computer, "a.odt", "2026-11-20 09:00:00"); },
      tick,
      [](ProgramRuns& computer) {
        Open(computer, "a.odt", "2026-11-20 10:00:00");
        Open(computer, "b.odt", "2026-11-20 10:00:00");
        Open(computer, "c.odt", "2026-11-21 08:00:00");
      },
      tick,
      tick,
      [](ProgramRuns& computer) { Open(computer, "a.odt", "2026-11-21 09:00:00"); },
      Killable([](ProgramRuns& computer) { computer.Exit(); }),
      start,
  };
}

/// Runs all of it, with a kill at the n-th change of the disk. Returns whether there were that many.
bool WorkKilledAt(ProgramRuns& computer, int n) {
  bool killed = false;
  computer.desktop.files.beforeChange = [&, left = n](const std::string&) mutable {
    killed = killed || --left == 0;
    if (killed) throw Killed();
  };
  for (const Step& step : WorkSteps()) step(computer);
  return killed;
}

std::set<std::string> Counts(ProgramRuns& computer) {
  std::set<std::string> counts;
  for (const auto& record : computer.Window().Favorites()->GetFavorites())
    counts.insert(favorites::TextOf(record[favorites::kTargetFileName]) + " " +
                  favorites::TextOf(record[favorites::kDaysAccessed]));
  return counts;
}

std::set<std::string> Filed(const ProgramRuns& computer) {
  const fs::path root = computer.NativeFile("Daily");
  std::set<std::string> filed;
  for (const auto& entry : fs::recursive_directory_iterator(root))
    if (!entry.is_directory()) filed.insert(entry.path().lexically_relative(root).generic_string());
  return filed;
}

void ExpectAllIsFiledAndCounted(ProgramRuns& computer, const std::string& oldDays, int n) {
  EXPECT_EQ(Filed(computer), (std::set<std::string>{"2026/November/19/a.odt.lnk", "2026/November/20/a.odt.lnk",
                                                    "2026/November/20/b.odt.lnk", "2026/November/21/a.odt.lnk",
                                                    "2026/November/21/c.odt.lnk"}))
      << "killed at change " << n;
  EXPECT_EQ(Counts(computer), (std::set<std::string>{"a.odt " + oldDays, "b.odt 1", "c.odt 1"}))
      << "killed at change " << n;
  EXPECT_FALSE(fs::exists(computer.NativeFile("Favorites.pending"))) << "killed at change " << n;
}

TEST(CaptureKillTest, WheneverTheProgramIsKilledEveryDayIsFiledAndCountedOnce) {
  int n = 1;
  for (bool killed = true; killed; ++n) {
    ProgramRuns computer;
    killed = WorkKilledAt(computer, n);
    ExpectAllIsFiledAndCounted(computer, "3", n);
  }
  EXPECT_GT(n, 30);
}

TEST(CaptureKillTest, WheneverTheProgramIsKilledTheDaysOfFormerYearsKeepTheirCounts) {
  int n = 1;
  for (bool killed = true; killed; ++n) {
    ProgramRuns computer;
    computer.desktop.folder.Write("program/Favorites.dat", kOldRecord);
    killed = WorkKilledAt(computer, n);
    ExpectAllIsFiledAndCounted(computer, "43", n);
  }
  EXPECT_GT(n, 30);
}

TEST(CaptureKillTest, WhatWasFiledAndNotCountedBeforeAPurgeIsCountedAllTheSame) {
  ProgramRuns computer;
  computer.desktop.folder.Write("program/Favorites.dat", kOldRecord);
  computer.Start();
  Open(computer, "a.odt", "2026-11-21 09:00:00");
  computer.desktop.files.beforeChange = [](const std::string& path) {
    if (path.ends_with("Favorites.dat")) throw Killed();
  };
  EXPECT_THROW(computer.Window().tmrMain.Fire(), Killed);
  computer.LetLive();
  computer.desktop.clock.Set(2027, 3, 1);
  computer.Start();
  EXPECT_TRUE(Filed(computer).empty()) << "the day was purged";
  EXPECT_EQ(Counts(computer), (std::set<std::string>{"a.odt 41"}));
}

}  // namespace
}  // namespace dayvane
