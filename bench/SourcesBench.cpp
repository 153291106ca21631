// SPDX-License-Identifier: MIT

// What it costs to look at all the places that tell of opened documents, and to read what KDE has recorded.

#include <benchmark/benchmark.h>
#include <memory>
#include <sqlite3.h>
#include <sys/stat.h>

#include "bench/Bench.h"
#include "links/ShellLinkFormat.h"
#include "linux/LinuxClock.h"
#include "linux/recent/KdeActivities.h"
#include "linux/recent/LibreOfficePicks.h"
#include "linux/recent/ProgramLists.h"
#include "linux/recent/RecentFolder.h"
#include "tests/linux/recent/ActivityDatabase.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane {
namespace {

constexpr std::int64_t kNine = 1795251600;  // 2026-11-21 09:00 UTC

/// The home of a user who has everything that tells of openings.
class Home {
 public:
  Home() {
    for (const std::string& list : {kList, kEditor, kFlatpak, kSnap})
      folder.Write(list, R"(<xbel><bookmark href="file:///home/ana/a.txt" modified="2026-11-20T08:00:00Z"/></xbel>)");
    folder.Write(kPicks, "<oor:items>\n</oor:items>\n");
    kde.Add("kate", "/home/ana/b.txt", kNine);
  }

  recent::RecentFolder::Surroundings Surroundings() const {
    recent::RecentFolder::Surroundings surroundings;
    surroundings.sources = recent::KnownProgramLists(folder.Native(), folder / "share");
    surroundings.sources.push_back(std::make_unique<recent::KdeActivities>(folder / kDatabase));
    surroundings.sources.push_back(std::make_unique<recent::LibreOfficePicks>(folder / "config/libreoffice"));
    return surroundings;
  }

  const std::string kList = "share/recently-used.xbel";
  const std::string kEditor = "share/org.gnome.TextEditor/recently-used.xbel";
  const std::string kFlatpak = ".var/app/org.example.Editor/data/recently-used.xbel";
  const std::string kSnap = "snap/editor/current/.local/share/recently-used.xbel";
  const std::string kPicks = "config/libreoffice/4/user/registrymodifications.xcu";
  const std::string kDatabase = "share/kactivitymanagerd/resources/database";

  testing::TemporaryFolder folder;
  testing::ActivityDatabase kde{folder / kDatabase};
};

void Sources_Unchanged(benchmark::State& state) {
  const Home home;
  recent::RecentFolder folder(
      LinuxClock::Nanoseconds,
      {home.folder / home.kList, home.folder / "state/Recent", home.folder / "state/Recent.state"},
      links::WriteShellLink, [](const std::string&) {}, home.Surroundings());
  for (int poll = 0; poll < 3; ++poll) {
    folder.Refresh();
    folder.Captured();
  }
  for (auto _ : state) folder.Refresh();
  TellMemory(state);
}

/// One look at each place: the list and those of other programs, with the folders in which more can appear, the
/// database with its log, LibreOffice's folder and profile.
void Sources_Yardstick_Status(benchmark::State& state) {
  const Home home;
  const std::string looked[] = {home.folder / home.kList,
                                home.folder / home.kEditor,
                                home.folder / ".var/app",
                                home.folder / home.kFlatpak,
                                home.folder / "snap",
                                home.folder / home.kSnap,
                                home.folder / home.kDatabase,
                                home.folder / (home.kDatabase + "-wal"),
                                home.folder / "config/libreoffice",
                                home.folder / home.kPicks};
  for (auto _ : state)
    for (const std::string& path : looked) {
      struct stat status {};
      benchmark::DoNotOptimize(stat(path.c_str(), &status));
    }
  TellMemory(state);
}

void AddEvents(testing::ActivityDatabase& kde, std::int64_t events) {
  kde.Run("BEGIN");
  for (std::int64_t event = 0; event < events; ++event)
    kde.Add("kate", "/home/ana/Documents/Document " + std::to_string(event % 5000) + ".txt", kNine + event,
            kNine + event);
  kde.Run("COMMIT");
}

void Activities_ReadSinceLastLook(benchmark::State& state) {
  Home home;
  recent::KdeActivities source(home.folder / home.kDatabase);
  const std::string memory = source.Read("").memory;
  AddEvents(home.kde, state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(source.Read(memory).openings.size());
  TellMemory(state);
}

void Activities_Yardstick_Rows(benchmark::State& state) {
  Home home;
  AddEvents(home.kde, state.range(0));
  for (auto _ : state) {
    sqlite3* database = nullptr;
    sqlite3_stmt* rows = nullptr;
    sqlite3_open_v2((home.folder / home.kDatabase).c_str(), &database, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_prepare_v2(database, "SELECT initiatingAgent, targettedResource, start, end FROM ResourceEvent", -1, &rows,
                       nullptr);
    std::size_t bytes = 0;
    while (sqlite3_step(rows) == SQLITE_ROW)
      for (int column = 0; column < 4; ++column)
        if (const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(rows, column)))
          bytes += std::string(text).size();
    benchmark::DoNotOptimize(bytes);
    sqlite3_finalize(rows);
    sqlite3_close(database);
  }
  TellMemory(state);
}

BENCHMARK(Sources_Unchanged)->Unit(benchmark::kMicrosecond);
BENCHMARK(Sources_Yardstick_Status)->Unit(benchmark::kMicrosecond);

void ByEvents(benchmark::internal::Benchmark* bench) {
  bench->Unit(benchmark::kMillisecond)->ArgName("openings")->Arg(1'000)->Arg(10'000)->Arg(100'000);
}
BENCHMARK(Activities_ReadSinceLastLook)->Apply(ByEvents);
BENCHMARK(Activities_Yardstick_Rows)->Apply(ByEvents);

}  // namespace
}  // namespace dayvane
