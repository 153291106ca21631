// SPDX-License-Identifier: MIT

// What capture, the rebuild and the tree cost, each beside the least that the disk itself costs for the same files.

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "links/ShellLinkFormat.h"
#include "tests/support/MainWindow.h"
#include "tests/support/System.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;

constexpr int kShortcuts = 10'000;
constexpr int kFiled = 100'000;
constexpr int kDocuments = 20'000;

std::string LinkBytes(int document) {
  static const char* const kExtensions[] = {"odt", "pdf", "txt", "png", "ods"};
  platform::ShellLink link;
  link.workingDirectory = "Z:\\home\\ana\\Documents\\project " + std::to_string(document % 100);
  link.target =
      link.workingDirectory + "\\Document number " + std::to_string(document) + "." + kExtensions[document % 5];
  return links::WriteShellLink(link);
}

/// The program's window over a scratch folder, with document classes whose program exists, so that filing a document
/// files a shortcut to its program too.
class Bench : public testing::MainWindow {
 public:
  Bench() {
    desktop.clock.Set(2026, 11, 21, 23, 59);
    for (const char* extension : {".ODT", ".PDF", ".TXT", ".PNG", ".ODS"})
      desktop.registry.AddClass(extension, "Some document", "icon,0", "\"Z:\\usr\\bin\\env\" \"%1\"");
    desktop.registry.keys["\\HKEY_CURRENT_USER\\Software\\Korvath\\Dayvane\\Options"]["Purge Age"] = "30000";
  }

  void FillRecent() const {
    for (int i = 0; i < kShortcuts; ++i) {
      const std::string path =
          desktop.folder.Write("recent/Document number " + std::to_string(i) + ".lnk", LinkBytes(i));
      testing::SetWritten(path, "2026-11-21 10:00:00", i);
    }
  }

  /// Fills the repository: each document on several days.
  void FillRepository() const {
    static const char* const kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                          "July",    "August",   "September", "October", "November", "December"};
    for (int i = 0; i < kFiled; ++i) {
      const int day = i / 100;
      char folder[64];
      std::snprintf(folder, sizeof folder, "program/Daily/%04d/%s/%02d/", 2020 + day / 336, kMonths[day / 28 % 12],
                    day % 28 + 1);
      const int document = i % kDocuments;
      desktop.folder.Write(folder + ("Document number " + std::to_string(document) + ".lnk"), LinkBytes(document));
    }
  }

  void FillTenYears() const {
    for (int year = 2017; year < 2027; ++year)
      for (int day = 0; day < 365; ++day) {
        const std::string month = desktop.dates.monthNames[static_cast<std::size_t>(std::min(day / 30, 11))];
        char name[8];
        std::snprintf(name, sizeof name, "%02d", day % 30 + (day >= 360 ? 26 : 1));
        fs::create_directories(Daily(std::to_string(year) + "/" + month + "/" + name));
        desktop.folder.Write("program/Daily/" + std::to_string(year) + "/" + month + "/" + name + "/a.lnk", "");
      }
  }
};

/// Opens, stats, reads and closes every file below a folder: what nobody who reads them can do without.
std::size_t ReadAll(const std::string& folder) {
  std::size_t bytes = 0;
  DIR* directory = opendir(folder.c_str());
  while (const dirent* entry = readdir(directory)) {
    if (entry->d_name[0] == '.') continue;
    const std::string path = folder + "/" + entry->d_name;
    if (entry->d_type == DT_DIR) {
      bytes += ReadAll(path);
      continue;
    }
    char buffer[65536];
    struct stat status {};
    const int file = open(path.c_str(), O_RDONLY);
    fstat(file, &status);
    const ssize_t count = read(file, buffer, sizeof buffer);
    bytes += count > 0 ? static_cast<std::size_t>(count) : 0;
    close(file);
  }
  closedir(directory);
  return bytes;
}

void Shell(const std::string& command) {
  if (std::system(command.c_str()) != 0) std::abort();
}

void Poll_Yardstick_ReadLoop(benchmark::State& state) {
  const Bench bench;
  bench.FillRecent();
  for (auto _ : state) benchmark::DoNotOptimize(ReadAll(bench.desktop.NativeRecent()));
}

void Poll_UnchangedShortcuts(benchmark::State& state) {
  Bench bench;
  bench.FillRecent();
  bench.Load();
  const auto written = fs::last_write_time(bench.Daily("2026/November/21"));
  for (auto _ : state) bench.Tick();
  if (fs::last_write_time(bench.Daily("2026/November/21")) != written) state.SkipWithError("a poll wrote a file");
}

void FirstFiling_Yardstick_CopyArchive(benchmark::State& state) {
  const Bench bench;
  bench.FillRecent();
  int copy = 0;
  for (auto _ : state)
    Shell("cp -a " + bench.desktop.NativeRecent() + " " + (bench.desktop.folder / "copy") + std::to_string(copy++));
}

void FirstFiling_WithFavorites(benchmark::State& state) {
  Bench bench;
  bench.FillRecent();
  bench.window.Form_Load();
  int filed = 0;
  for (auto _ : state) {
    state.PauseTiming();
    // Moved away, not deleted: some disks are slow to use again what was deleted within the last seconds.
    if (fs::exists(bench.Daily("2026")))
      fs::rename(bench.Daily("2026"), bench.desktop.folder / ("filed" + std::to_string(filed++)));
    state.ResumeTiming();
    bench.Tick();
  }
}

void Rebuild_Yardstick_ReadLoop(benchmark::State& state) {
  const Bench bench;
  bench.FillRepository();
  for (auto _ : state) benchmark::DoNotOptimize(ReadAll(bench.desktop.NativeFolder() + "/Daily"));
}

void Rebuild_Repository(benchmark::State& state) {
  Bench bench;
  bench.FillRepository();
  bench.Load();
  for (auto _ : state) bench.window.Favorites()->RebuildFavorites();
  if (bench.window.Favorites()->Count() != kDocuments) state.SkipWithError("not every document was found once");
}

void Tree_Yardstick_FindFolders(benchmark::State& state) {
  const Bench bench;
  bench.FillTenYears();
  for (auto _ : state) Shell("find " + bench.desktop.NativeFolder() + "/Daily -type d > /dev/null");
}

void Tree_RefreshDaily(benchmark::State& state) {
  Bench bench;
  bench.FillTenYears();
  bench.Load();
  for (auto _ : state) bench.window.RefreshDaily();
}

BENCHMARK(Poll_Yardstick_ReadLoop)->Unit(benchmark::kMillisecond);
BENCHMARK(Poll_UnchangedShortcuts)->Unit(benchmark::kMillisecond);
BENCHMARK(FirstFiling_Yardstick_CopyArchive)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);
BENCHMARK(FirstFiling_WithFavorites)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);
BENCHMARK(Rebuild_Yardstick_ReadLoop)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(Rebuild_Repository)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(Tree_Yardstick_FindFolders)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Tree_RefreshDaily)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace dayvane

BENCHMARK_MAIN();
