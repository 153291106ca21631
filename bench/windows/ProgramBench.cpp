// SPDX-License-Identifier: MIT
#include "bench/windows/ProgramBench.h"

#include <stdexcept>

#include "bench/MadeUpDocuments.h"
#include "tests/support/System.h"
#include "windows/files/NativePath.h"

namespace dayvane::bench {

void WriteShortcuts(const testing::TemporaryFolder& folder, const std::string& name, std::int64_t shortcuts) {
  constexpr std::int64_t kFirstDay = 12;  // of November
  for (std::int64_t i = 0; i < shortcuts; ++i)
    testing::SetWritten(folder.Write(name + "/" + ShortcutName(i), LinkBytes(i)),
                        "2026-11-" + std::to_string(kFirstDay + i % kDays) + " 10:00:00", static_cast<long>(100 * i));
}

std::vector<std::wstring> FilesIn(const std::string& folder) {
  std::vector<std::wstring> found;
  files::WindowsFileSystem disk;
  for (const auto& entry : disk.List(folder)) found.push_back(files::ToNative(folder + "\\" + entry.name).value());
  return found;
}

void CopyAll(const std::vector<std::wstring>& files, const std::wstring& folder) {
  if (CreateDirectoryW(folder.c_str(), nullptr) == 0) throw std::runtime_error("no folder to copy into");
  for (std::size_t i = 0; i < files.size(); ++i) {
    const std::wstring day = folder + L"\\" + std::to_wstring(i % kDays);
    if (i < kDays) CreateDirectoryW(day.c_str(), nullptr);
    if (CopyFileW(files[i].c_str(), (day + files[i].substr(files[i].rfind(L'\\'))).c_str(), TRUE) == 0)
      throw std::runtime_error("cannot copy");
  }
}

ProgramBench::ProgramBench(std::int64_t shortcuts) {
  constexpr const char* kOptions = "Software\\Korvath\\Dayvane\\Options";
  m_clock.Set(2026, 11, 21, 23, 59);
  m_userRoot.SetText(kOptions, "Favorites Threshold", "2");
  m_userRoot.SetText(kOptions, "Purge Age", "30000");
  m_userRoot.SetText(kOptions, "Timer Interval", "60");
  WriteShortcuts(m_folder, "recent", shortcuts);
  m_windowing.pending = [this] { m_messages.ProcessPendingMessages(); };
}

}  // namespace dayvane::bench
