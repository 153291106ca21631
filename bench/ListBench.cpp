// SPDX-License-Identifier: MIT

// What a click on a column of a long list costs, beside sorting the bare texts.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <random>

#include "bench/Bench.h"
#include "controls/ListView.h"

namespace dayvane {
namespace {

/// Names in no order, the same at every run.
std::vector<std::string> Names(std::int64_t rows) {
  std::vector<std::string> names;
  for (std::int64_t row = 0; row < rows; ++row) names.push_back("Document number " + std::to_string(row) + ".odt");
  std::shuffle(names.begin(), names.end(), std::mt19937(1));  // NOLINT(cert-msc51-cpp)
  return names;
}

void Sort_ColumnClick(benchmark::State& state) {
  controls::ListView list;
  list.SetColumns({{"Name"}, {"Type"}});
  for (const std::string& name : Names(state.range(0))) list.Add("K" + name, name, 1).subItems = {"Type " + name};
  list.SetSorted(true);
  std::size_t column = 0;
  for (auto _ : state) list.SetSortKey(column = 1 - column);
  TellMemory(state);
}

void Sort_Yardstick_StableSort(benchmark::State& state) {
  const std::vector<std::string> names = Names(state.range(0));
  for (auto _ : state) {
    std::vector<std::string> sorted = names;
    std::stable_sort(sorted.begin(), sorted.end());
    benchmark::DoNotOptimize(sorted.data());
  }
  TellMemory(state);
}

void ByRows(benchmark::internal::Benchmark* bench) {
  bench->Unit(benchmark::kMillisecond)->MinTime(1)->ArgName("rows")->Arg(1'000)->Arg(10'000)->Arg(100'000);
}
BENCHMARK(Sort_ColumnClick)->Apply(ByRows);
BENCHMARK(Sort_Yardstick_StableSort)->Apply(ByRows);

}  // namespace
}  // namespace dayvane
