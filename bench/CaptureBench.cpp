// SPDX-License-Identifier: MIT

// What capture, the rebuild and the tree cost, each beside the least that the disk itself costs for the same files.

#include <benchmark/benchmark.h>
#include <filesystem>

#include "bench/Bench.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;

/// Documents of a record that FillRepository made.
std::int64_t DocumentsOf(const benchmark::State& state) {
  return state.range(0) / 5;
}

void Poll_Yardstick_ReadLoop(benchmark::State& state) {
  const Bench bench;
  bench.FillRecent(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(ReadAll(bench.desktop.NativeRecent()));
  TellMemory(state);
}

void Poll_UnchangedShortcuts(benchmark::State& state) {
  Bench bench;
  bench.FillRecent(state.range(0));
  bench.Load();
  const auto written = fs::last_write_time(bench.Daily("2026/November/21"));
  for (auto _ : state) bench.Tick();
  TellMemory(state);
  if (fs::last_write_time(bench.Daily("2026/November/21")) != written) state.SkipWithError("a poll wrote a file");
}

void FirstFiling_Yardstick_CopyArchive(benchmark::State& state) {
  const Bench bench;
  bench.FillRecent(state.range(0));
  int copy = 0;
  for (auto _ : state)
    Shell("cp -a " + bench.desktop.NativeRecent() + " " + (bench.desktop.folder / "copy") + std::to_string(copy++));
  TellMemory(state);
}

void FirstFiling_WithFavorites(benchmark::State& state) {
  Bench bench;
  bench.FillRecent(state.range(0));
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
  TellMemory(state);
}

void Rebuild_Yardstick_ReadLoop(benchmark::State& state) {
  const Bench bench;
  bench.FillRepository(state.range(0), state.range(1));
  for (auto _ : state) benchmark::DoNotOptimize(ReadAll(bench.desktop.NativeFolder() + "/Daily"));
  TellMemory(state);
}

void Rebuild_Repository(benchmark::State& state) {
  Bench bench;
  bench.FillRepository(state.range(0), state.range(1));
  bench.Load();
  for (auto _ : state) bench.window.Favorites()->RebuildFavorites();
  TellMemory(state);
  if (bench.window.Favorites()->Count() != DocumentsOf(state)) state.SkipWithError("not every document was found once");
}

void Tree_Yardstick_FindFolders(benchmark::State& state) {
  const Bench bench;
  bench.FillYears(state.range(0));
  for (auto _ : state) Shell("find " + bench.desktop.NativeFolder() + "/Daily -type d > /dev/null");
  TellMemory(state);
}

void Tree_RefreshDaily(benchmark::State& state) {
  Bench bench;
  bench.FillYears(state.range(0));
  bench.Load();
  for (auto _ : state) bench.window.RefreshDaily();
  TellMemory(state);
}

void ByShortcuts(benchmark::internal::Benchmark* bench) {
  bench->Unit(benchmark::kMillisecond)->ArgName("shortcuts")->Arg(1'000)->Arg(10'000)->Arg(100'000);
}
BENCHMARK(Poll_Yardstick_ReadLoop)->Apply(ByShortcuts);
BENCHMARK(Poll_UnchangedShortcuts)->Apply(ByShortcuts);
BENCHMARK(FirstFiling_Yardstick_CopyArchive)->Apply(ByShortcuts)->UseRealTime()->Iterations(5);
BENCHMARK(FirstFiling_WithFavorites)->Apply(ByShortcuts)->UseRealTime()->Iterations(5);

void ByRecord(benchmark::internal::Benchmark* bench) {
  bench->Unit(benchmark::kMillisecond)->Iterations(3)->ArgNames({"shortcuts", "years"});
  bench->Args({1'000, 1})->Args({10'000, 1})->Args({10'000, 10})->Args({100'000, 1})->Args({100'000, 10});
}
BENCHMARK(Rebuild_Yardstick_ReadLoop)->Apply(ByRecord);
BENCHMARK(Rebuild_Repository)->Apply(ByRecord);

void ByYears(benchmark::internal::Benchmark* bench) {
  bench->Unit(benchmark::kMillisecond)->UseRealTime()->ArgName("years")->Arg(1)->Arg(10);
}
BENCHMARK(Tree_Yardstick_FindFolders)->Apply(ByYears);
BENCHMARK(Tree_RefreshDaily)->Apply(ByYears);

}  // namespace
}  // namespace dayvane

BENCHMARK_MAIN();
