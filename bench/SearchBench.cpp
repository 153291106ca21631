// SPDX-License-Identifier: MIT

// What one key costs that the user presses in the desktop's search, and the first of them, in a record of 10,000
// links: beside comparing the bare names, and beside listing the same folders.

#include <benchmark/benchmark.h>
#include <filesystem>

#include "base/Text.h"
#include "links/ShellLinkFormat.h"
#include "linux/LinuxClock.h"
#include "linux/search/DocumentIndex.h"
#include "repository/CRepository.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

constexpr int kDays = 30;
constexpr int kLinks = 10'000;
constexpr std::size_t kMostFound = 20;

std::string NameOf(int number) {
  return "Document number " + std::to_string(number) + ".odt";
}

/// The record, made once, long enough ago for the moments of its folders to be settled.
struct Record {
  Record() {
    desktop.clock.now = LinuxClock().Now() + std::chrono::hours(1);
    for (int number = 0; number < kLinks; ++number) {
      const std::string day = "2026/October/" + text::Padded(number % kDays + 1, 2);
      platform::ShellLink link;
      link.target = "Z:\\home\\ana\\" + NameOf(number);
      desktop.folder.Write("program/Daily/" + day + "/" + NameOf(number) + ".lnk", links::WriteShellLink(link));
    }
  }

  testing::TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  CRepository repository{application};
};

Record& TheRecord() {
  static Record record;
  return record;
}

search::DocumentIndex Index() {
  return {TheRecord().application, TheRecord().repository.DailyPath(), LinuxClock::CoarseTime};
}

void Search_Key(benchmark::State& state) {
  search::DocumentIndex index = Index();
  for (auto _ : state) benchmark::DoNotOptimize(index.Find({"number", "9999"}, kMostFound));
}
BENCHMARK(Search_Key)->Unit(benchmark::kMillisecond)->MinTime(1);

void Search_Yardstick_BareNames(benchmark::State& state) {
  std::vector<std::string> names;
  for (int number = 0; number < kLinks; ++number) names.push_back(NameOf(number));
  for (auto _ : state) {
    std::size_t found = 0;
    for (const std::string& name : names)
      found += name.find("number") != std::string::npos && name.find("9999") != std::string::npos ? 1 : 0;
    benchmark::DoNotOptimize(found);
  }
}
BENCHMARK(Search_Yardstick_BareNames)->Unit(benchmark::kMillisecond)->MinTime(1);

void Search_FirstKey(benchmark::State& state) {
  for (auto _ : state) {
    search::DocumentIndex index = Index();
    benchmark::DoNotOptimize(index.Find({"number", "9999"}, kMostFound));
  }
}
BENCHMARK(Search_FirstKey)->Unit(benchmark::kMillisecond)->MinTime(1);

void Search_Yardstick_Listing(benchmark::State& state) {
  Record& record = TheRecord();
  for (auto _ : state)
    for (int day = 1; day <= kDays; ++day)
      benchmark::DoNotOptimize(
          record.desktop.files.List(record.repository.DailyPath() + "\\2026\\October\\" + text::Padded(day, 2)));
}
BENCHMARK(Search_Yardstick_Listing)->Unit(benchmark::kMillisecond)->MinTime(1);

}  // namespace
}  // namespace dayvane
