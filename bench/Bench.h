// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>
#include <cstddef>
#include <string>

#include "tests/support/MainWindow.h"

namespace dayvane {

/// The program's window over a scratch folder, with document classes whose program exists, so that filing a document
/// files a shortcut to its program too.
class Bench : public testing::MainWindow {
 public:
  Bench();

  /// Puts shortcuts to as many documents into the Recent folder, all of one day.
  void FillRecent(std::int64_t shortcuts) const;

  /// Fills the repository with shortcuts, evenly over the days of the years up to 2026: each document on five days.
  void FillRepository(std::int64_t shortcuts, std::int64_t years) const;

  /// The same with one shortcut on every day of as many years, for which only the days matter.
  void FillYears(std::int64_t years) const;

  /// Files shortcuts to as many documents under one day, "2026/November/21".
  void FillDay(const std::string& day, std::int64_t documents) const;
};

/// Opens, stats, reads and closes every file below a folder: what nobody who reads them can do without.
std::size_t ReadAll(const std::string& folder);

void Shell(const std::string& command);

/// What a process has in memory, in KB.
double ResidentMemory(const std::string& process = "self");

/// Adds what this process has in memory to what is told of the benchmark. It means most in a process of its own.
void TellMemory(benchmark::State& state);

}  // namespace dayvane
