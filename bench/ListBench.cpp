// SPDX-License-Identifier: MIT

// What a click on a column of a long list costs, beside sorting the bare texts.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <random>

#include "controls/ListView.h"

namespace dayvane {
namespace {

constexpr int kRows = 50'000;

/// Names in no order, the same at every run.
std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (int row = 0; row < kRows; ++row) names.push_back("Document number " + std::to_string(row) + ".odt");
  std::shuffle(names.begin(), names.end(), std::mt19937(1));  // NOLINT(cert-msc51-cpp)
  return names;
}

void Sort_ColumnClick(benchmark::State& state) {
  controls::ListView list;
  list.SetColumns({{"Name"}, {"Type"}});
  for (const std::string& name : Names()) list.Add("K" + name, name, 1).subItems = {"Type " + name};
  list.SetSorted(true);
  std::size_t column = 0;
  for (auto _ : state) list.SetSortKey(column = 1 - column);
}
BENCHMARK(Sort_ColumnClick)->Unit(benchmark::kMillisecond)->MinTime(1);

void Sort_Yardstick_StableSort(benchmark::State& state) {
  const std::vector<std::string> names = Names();
  for (auto _ : state) {
    std::vector<std::string> sorted = names;
    std::stable_sort(sorted.begin(), sorted.end());
    benchmark::DoNotOptimize(sorted.data());
  }
}
BENCHMARK(Sort_Yardstick_StableSort)->Unit(benchmark::kMillisecond)->MinTime(1);

}  // namespace
}  // namespace dayvane
