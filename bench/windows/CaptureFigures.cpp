// SPDX-License-Identifier: MIT

// What it costs to look for new documents, and to file them, beside what the same files cost at least.

#include <stdexcept>

#include "bench/windows/Figures.h"
#include "bench/windows/ProgramBench.h"
#include "windows/files/Handle.h"
#include "windows/files/NativePath.h"

namespace dayvane::bench {
namespace {

constexpr const char* kFiledDay = "\\2026\\November\\21";

/// Opens, asks, reads and closes every file of a folder: what nobody who reads them can do without.
std::size_t ReadAll(const std::wstring& folder) {
  std::size_t bytes = 0;
  WIN32_FIND_DATAW found{};
  const files::SearchHandle search(FindFirstFileW((folder + L"\\*").c_str(), &found));
  do {
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) continue;
    const std::wstring path = folder + L"\\" + found.cFileName;
    const files::FileHandle file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                             FILE_ATTRIBUTE_NORMAL, nullptr));
    BY_HANDLE_FILE_INFORMATION information{};
    char buffer[65536];
    DWORD count = 0;
    if (GetFileInformationByHandle(file.Get(), &information) == 0 ||
        ReadFile(file.Get(), buffer, sizeof buffer, &count, nullptr) == 0)
      throw std::runtime_error("cannot read what is there");
    bytes += count;
  } while (FindNextFileW(search.Get(), &found) != 0);
  return bytes;
}

FILETIME WrittenOf(const std::wstring& path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data);
  return data.ftLastWriteTime;
}

void MeasurePoll(Figures& figures, std::int64_t shortcuts) {
  constexpr int kRounds = 5;
  ProgramBench bench(shortcuts);
  bench.Load();
  bench.Tick();  // what is known to be filed is looked at only from the second time on
  const std::wstring recent = files::ToNative(bench.Recent()).value();
  const std::wstring filed = files::ToNative(bench.Daily() + kFiledDay).value();
  const FILETIME written = WrittenOf(filed);
  const Pair pair = Measure(
      kRounds, [&] { return Seconds([&] { ReadAll(recent); }); }, [&] { return Seconds([&] { bench.Tick(); }); });
  const FILETIME after = WrittenOf(filed);
  if (CompareFileTime(&written, &after) != 0) throw std::runtime_error("a poll wrote a file");
  figures.Compare("A poll of " + std::to_string(shortcuts) + " unchanged shortcuts", pair, 2, "reading the files");
}

void MeasureFiling(Figures& figures, std::int64_t shortcuts) {
  constexpr int kRounds = 5;
  ProgramBench bench(shortcuts);
  bench.Load();
  const auto sources = FilesIn(bench.Recent());
  int round = 0;
  const auto copy = [&] {
    const std::wstring folder = files::ToNative(bench.Elsewhere("copy" + std::to_string(++round))).value();
    return Seconds([&] { CopyAll(sources, folder); });
  };
  const auto file = [&] {
    // Moved away, not deleted: some disks are slow to use again what was deleted within the last seconds.
    const std::wstring before = files::ToNative(bench.Elsewhere("filed" + std::to_string(round))).value();
    if (MoveFileW(files::ToNative(bench.Daily() + "\\2026").value().c_str(), before.c_str()) == 0)
      throw std::runtime_error("nothing was filed");
    return Seconds([&] { bench.Tick(); });
  };
  const Pair pair = Measure(kRounds, copy, file);
  // Beside the documents, the programs that open them.
  if (FilesIn(bench.Daily() + kFiledDay).size() < sources.size() / kDays)
    throw std::runtime_error("not all were filed");
  figures.Compare("The first filing of " + std::to_string(shortcuts) + " shortcuts", pair, 3, "CopyFileW");
}

}  // namespace

void MeasureCapture(Figures& figures) {
  constexpr int kFew = 1'000;
  MeasurePoll(figures, kFew);
  MeasureFiling(figures, kFew);
}

void MeasureManyShortcuts(Figures& figures) {
  constexpr int kMany = 10'000;
  MeasurePoll(figures, kMany);
}

}  // namespace dayvane::bench
