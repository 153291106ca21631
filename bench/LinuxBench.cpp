// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include "linux/glib/ErrorNet.h"
#include "tests/linux/EnvironmentVariable.h"
#include "tests/support/TemporaryFolder.h"

/// The benchmarks' own windows need no screen, and nothing of the user's is read or written.
int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  const dayvane::testing::TemporaryFolder home;
  const dayvane::testing::EnvironmentVariable variables[] = {{"HOME", home.Native()},
                                                             {"XDG_DATA_HOME", home / "data"},
                                                             {"XDG_CONFIG_HOME", home / "config"},
                                                             {"XDG_CACHE_HOME", home / "cache"}};
  char platform[] = "-platform";
  char offscreen[] = "offscreen";
  char* arguments[] = {argv[0], platform, offscreen, nullptr};
  int count = 3;
  const dayvane::NetApplication application(count, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
