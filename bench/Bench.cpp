// SPDX-License-Identifier: MIT
#include "bench/Bench.h"

#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

#include "bench/MadeUpDocuments.h"
#include "tests/support/System.h"

namespace dayvane {

namespace {

constexpr std::int64_t kLastYear = 2026;
constexpr std::int64_t kDaysOfMonth = 28;  // every month has them
constexpr std::int64_t kMonths = 12;
constexpr std::int64_t kDaysPerDocument = 5;

/// "2017/January/01" for day 0 of the ten years up to 2026.
std::string DayFolder(std::int64_t day, std::int64_t years) {
  static const char* const kNames[] = {"January", "February", "March",     "April",   "May",      "June",
                                       "July",    "August",   "September", "October", "November", "December"};
  const std::int64_t month = day / kDaysOfMonth;
  char number[8];
  std::snprintf(number, sizeof number, "%02d", static_cast<int>(day % kDaysOfMonth + 1));
  return std::to_string(kLastYear - years + 1 + month / kMonths) + "/" + kNames[month % kMonths] + "/" + number;
}

}  // namespace

Bench::Bench() {
  desktop.clock.Set(2026, 11, 21, 23, 59);
  for (const char* extension : {".ODT", ".PDF", ".TXT", ".PNG", ".ODS"})
    desktop.registry.AddClass(extension, "Some document", "icon,0", "\"Z:\\usr\\bin\\env\" \"%1\"");
  desktop.registry.Settings("Options")["Purge Age"] = "30000";
}

void Bench::FillRecent(std::int64_t shortcuts) const {
  for (std::int64_t i = 0; i < shortcuts; ++i) {
    const std::string path = desktop.folder.Write("recent/" + ShortcutName(i), LinkBytes(i));
    testing::SetWritten(path, "2026-11-21 10:00:00", i);
  }
}

void Bench::FillRepository(std::int64_t shortcuts, std::int64_t years) const {
  const std::int64_t days = years * kMonths * kDaysOfMonth;
  const std::int64_t documents = shortcuts / kDaysPerDocument;
  for (std::int64_t i = 0; i < shortcuts; ++i) {
    const std::string folder = "program/Daily/" + DayFolder(i * days / shortcuts, years) + "/";
    desktop.folder.Write(folder + ShortcutName(i % documents), LinkBytes(i % documents));
  }
}

void Bench::FillYears(std::int64_t years) const {
  for (std::int64_t day = 0; day < years * kMonths * kDaysOfMonth; ++day)
    desktop.folder.Write("program/Daily/" + DayFolder(day, years) + "/a.lnk", "");
}

void Bench::FillDay(const std::string& day, std::int64_t documents) const {
  for (std::int64_t i = 0; i < documents; ++i)
    desktop.folder.Write("program/Daily/" + day + "/" + ShortcutName(i), LinkBytes(i));
}

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

double ResidentMemory(const std::string& process) {
  std::ifstream status("/proc/" + process + "/status");
  for (std::string word; status >> word;)
    if (word == "VmRSS:") {
      double kilobytes = 0;
      status >> kilobytes;
      return kilobytes;
    }
  throw std::runtime_error("no memory is told of process " + process);
}

void TellMemory(benchmark::State& state) {
  state.counters["resident_kB"] = ResidentMemory();
}

}  // namespace dayvane
