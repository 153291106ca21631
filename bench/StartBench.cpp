// SPDX-License-Identifier: MIT

// From the start of the program itself to a window that answers, beside a program of Qt that only shows a window.

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>

#include "bench/Bench.h"
#include "bench/WindowClock.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;

/// Measures starts of a program, each after something was prepared.
void MeasureStarts(benchmark::State& state, const std::string& program, const std::function<void()>& prepare) {
  WindowClock clock;
  for (auto _ : state) {
    prepare();
    const WindowClock::Started started = clock.Start(program);
    state.SetIterationTime(started.seconds);
    state.counters["resident_kB"] = ResidentMemory(std::to_string(started.process));
    WindowClock::End(started.process);
  }
}

/// A copy of the program beside a record, where it keeps its data. The options are stored, so that it asks nothing.
std::string ProgramBeside(const Bench& record) {
  const fs::path settings = fs::path(std::getenv("XDG_CONFIG_HOME")) / "dayvane/dayvane.ini";
  fs::create_directories(settings.parent_path());
  const std::string written = record.desktop.folder.Write("dayvane.ini",
                                                          "[Software\\Korvath\\Dayvane\\Options]\n"
                                                          "Favorites Threshold=3\nPurge Age=30000\n"
                                                          "Timer Interval=60\n");
  fs::copy_file(written, settings, fs::copy_options::overwrite_existing);
  std::string program = record.desktop.NativeFolder() + "/dayvane";
  fs::copy_file(DAYVANE_PROGRAM, program);
  return program;
}

/// Has a made-up user open as many documents, which lie in the home folder, all within the last hour.
void OpenDocuments(int round, std::int64_t documents) {
  const fs::path home = std::getenv("HOME");
  const fs::path data = std::getenv("XDG_DATA_HOME");
  fs::create_directories(data);
  std::ofstream list(data / "recently-used.xbel");
  list << "<xbel>\n";
  const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
  for (std::int64_t i = 0; i < documents; ++i) {
    const fs::path path = home / ("Page-" + std::to_string(round) + "-" + std::to_string(i) + ".txt");
    std::ofstream(path) << "Dear Ana";
    list << "<bookmark href=\"file://" << path.string() << "\"><application timestamp=\""
         << now.time_since_epoch().count() - documents + i << "\"/></bookmark>\n";
  }
  list << "</xbel>\n";
}

void Start_Program(benchmark::State& state) {
  Bench record;
  record.FillRepository(state.range(0), state.range(1));
  record.Load();
  record.window.RebuildFavorites();
  MeasureStarts(state, ProgramBeside(record), [] {});
}

void Start_WithBacklog(benchmark::State& state) {
  const Bench record;
  record.FillRepository(10'000, 1);
  const std::string program = ProgramBeside(record);
  int round = 0;
  MeasureStarts(state, program, [&] { OpenDocuments(++round, state.range(0)); });
}

void Start_Yardstick_EmptyWindow(benchmark::State& state) {
  MeasureStarts(state, DAYVANE_EMPTY_WINDOW, [] {});
}

void ByStart(benchmark::internal::Benchmark* bench) {
  bench->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);
}
BENCHMARK(Start_Program)
    ->Apply(ByStart)
    ->ArgNames({"shortcuts", "years"})
    ->Args({1'000, 1})
    ->Args({10'000, 1})
    ->Args({10'000, 10})
    ->Args({100'000, 1})
    ->Args({100'000, 10});
BENCHMARK(Start_WithBacklog)->Apply(ByStart)->ArgName("openings")->Arg(1'000);
BENCHMARK(Start_Yardstick_EmptyWindow)->Apply(ByStart);

}  // namespace
}  // namespace dayvane
