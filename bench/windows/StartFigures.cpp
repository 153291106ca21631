// SPDX-License-Identifier: MIT

// From the start of the program itself to its window, and how large the program is.

#include <algorithm>
#include <limits>
#include <optional>
#include <stdexcept>

#include "bench/windows/Figures.h"
#include "bench/windows/ProgramBench.h"
#include "tests/windows/RecentDocuments.h"
#include "tests/windows/session/RemoteProgram.h"
#include "windows/files/NativePath.h"
#include "windows/files/WideText.h"

namespace dayvane::bench {
namespace {

constexpr std::int64_t kBacklog = 1'000;

void StoreOption(const wchar_t* name, const wchar_t* text) {
  RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Korvath\\Dayvane\\Options", name, REG_SZ, text,
                  static_cast<DWORD>((std::wcslen(text) + 1) * sizeof(wchar_t)));
}

/// The program in a folder of its own. The options are stored, so that it asks nothing.
class ProgramFolder {
 public:
  ProgramFolder() {
    StoreOption(L"Favorites Threshold", L"3");
    StoreOption(L"Purge Age", L"30000");
    StoreOption(L"Timer Interval", L"60");
    const std::wstring copy = Wide() + L"\\dayvane.exe";
    if (CopyFileW(files::ToWide(DAYVANE_PROGRAM).value().c_str(), copy.c_str(), TRUE) == 0)
      throw std::runtime_error("there is no program to measure");
  }

  std::wstring Wide() const { return files::ToWide(m_folder.Path()).value(); }

  /// Seconds until the main window is shown; the program is ended then.
  double Start() const {
    constexpr DWORD kBetweenLooks = 2;  // milliseconds, which leaves the processor to the program
    std::optional<session::RemoteProgram> program;
    return Seconds([&] {
      program.emplace(Wide());
      for (HWND window = nullptr; window == nullptr || IsWindowVisible(window) == 0;
           window = FindWindowW(L"Dayvane.Main", nullptr)) {
        if (!program->Runs()) throw std::runtime_error("the program ended without a window");
        Sleep(kBetweenLooks);
      }
    });
  }

 private:
  testing::TemporaryFolder m_folder;
};

/// Documents that the user has opened, put into the real Recent folder by bare copies, and taken away again.
class Backlog {
 public:
  Backlog() {
    WriteShortcuts(m_made, "opened", kBacklog);
    m_sources = FilesIn(m_made.Path() + "\\opened");
  }
  Backlog(const Backlog&) = delete;
  Backlog& operator=(const Backlog&) = delete;
  ~Backlog() { TakeAway(); }

  /// Returns the seconds that it takes.
  double Put() {
    return Seconds([this] {
      for (const std::wstring& source : m_sources) {
        const std::wstring opened = m_recent + source.substr(source.rfind(L'\\'));
        if (CopyFileW(source.c_str(), opened.c_str(), TRUE) == 0)
          throw std::runtime_error("the Recent folder has such documents already");
        m_put.push_back(opened);
      }
    });
  }

  void TakeAway() {
    for (const std::wstring& shortcut : m_put) DeleteFileW(shortcut.c_str());
    m_put.clear();
  }

 private:
  const std::wstring m_recent = files::ToNative(testing::RecentFolder()).value();
  testing::TemporaryFolder m_made;
  std::vector<std::wstring> m_sources;
  std::vector<std::wstring> m_put;
};

std::int64_t SizeOf(const std::wstring& path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) == 0)
    throw std::runtime_error("there is no program to measure");
  return static_cast<std::int64_t>(data.nFileSizeLow) + (static_cast<std::int64_t>(data.nFileSizeHigh) << 32);
}

}  // namespace

void MeasureStart(Figures& figures) {
  constexpr int kRounds = 3;
  constexpr double kLimit = 2;
  constexpr std::int64_t kLargest = 3 << 20;
  ProgramFolder().Start();  // what the system loads once is not the program's
  Backlog backlog;
  double copying = std::numeric_limits<double>::max();
  const auto withNone = [] { return ProgramFolder().Start(); };
  const auto withBacklog = [&] {
    copying = std::min(copying, backlog.Put());
    const double seconds = ProgramFolder().Start();
    backlog.TakeAway();
    return seconds;
  };
  const Pair starts = Measure(kRounds, withNone, withBacklog);
  figures.Compare("A start with " + std::to_string(kBacklog) + " documents to file",
                  {starts.subject, starts.yardstick + copying}, kLimit, "one with none and CopyFileW");
  figures.AtMost("The program's file", SizeOf(ProgramFolder().Wide() + L"\\dayvane.exe"), kLargest);
}

}  // namespace dayvane::bench
