// SPDX-License-Identifier: MIT

// The purge: old days, a single day, and the sweep of the folders that it empties.

#include <utility>

#include "app/IgnoreErrors.h"
#include "app/MDayvane.h"
#include "base/Error.h"
#include "base/Text.h"
#include "repository/CRepository.h"
#include "resources/StringTable.h"

namespace dayvane {

namespace {

bool IsDayName(const std::string& name) {
  return text::IsNumeric(name) && name.size() == 2;
}
bool IsMonthName(const std::string& name) {
  return !text::IsNumeric(name);
}
bool IsYearName(const std::string& name) {
  return text::IsNumeric(name) && name.size() == 4;
}

}  // namespace

bool CRepository::PurgeOldShortcuts(int purgeAge) {
  Assert(!text::Trim(m_dailyPath).empty(), ".PurgeOldShortcuts: Daily path is missing");
  // A folder's date is its midnight and this limit has a time of day: the extra day keeps a day whole until it lies
  // more than the purge age back.
  m_purgeDate = m_application.Now().AddDays(-std::int64_t{purgeAge}).AddDays(-1);
  m_purged = false;
  m_oPurgeWalker.WalkDirectoryTree(m_dailyPath + "\\", "*.*", kWalkReportFolders);
  return m_purged;
}

void CRepository::m_oPurgeWalker_ItemFound(const std::string& path, const std::string& fileName, bool& cancel) {
  Assert(!m_purgeDate.IsZero(), ".m_oPurgeWalker_ItemFound: Purge date is missing");
  if (!IsDayName(fileName)) return;
  const auto date = DateOf(path + fileName);
  if (!date) return PassOver(path + fileName);
  if (*date > m_purgeDate) return;
  if (!m_purgeAsked) {
    m_purgeAsked = true;
    m_purgeConfirmed = ConfirmPurge();
  }
  if (!m_purgeConfirmed) {
    cancel = true;
    return;
  }
  PurgeDay(path + fileName);
  m_purged = true;
  m_application.desktop.windowing.ProcessPendingMessages();
}

std::optional<Date> CRepository::DateOf(const std::string& dayFolder) const {
  // Users keep folders of their own here, and a language that the settings have forgotten: one of them must not keep
  // the days behind it from being looked at, now and at every start.
  std::optional<Date> date;
  IgnoreErrors([&] { date = PathToDate(m_application, dayFolder); });
  return date;
}

void CRepository::PassOver(const std::string& folder) {
  if (std::exchange(m_passedOver, true)) return;
  m_application.eventLog.Append(
      "A folder that is no day of the record is passed over, with all others like it: " + folder, EventKind::Warning);
}

bool CRepository::ConfirmPurge() const {
  Assert(!m_purgeDate.IsZero(), ".ConfirmPurge: Purge date is missing");
  const std::string date = Format(m_purgeDate, "m/d/yyyy", m_application.desktop.dates);
  const std::string question = ResourceString(kPurgeThereAreShortcuts) + "\r\n" + ResourceString(kPurgeBefore) + date +
                               "." + "\r\n\r\n" + ResourceString(kPurgeDoYouWant) + "\r\n" +
                               ResourceString(kPurgeDocumentsStay);
  return m_application.Ask(question, platform::MessageIcon::Information);
}

void CRepository::PurgeDay(const std::string& folder) const {
  Assert(!text::Trim(folder).empty(), ".PurgeDay: Folder is missing");
  auto& files = m_application.desktop.files;
  for (const auto& entry : files.List(folder))
    if (entry.kind != platform::EntryKind::Folder) files.Delete(folder + "\\" + entry.name);
  files.RemoveFolder(folder);
}

bool CRepository::PurgeEmptyFolders() {
  Assert(!text::Trim(m_dailyPath).empty(), ".PurgeEmptyFolders: Daily path is missing");
  // In this order a month emptied by the days' sweep, and a year by the months', goes in the same call.
  const bool days = SweepEmptyFolders(m_oFileWalker, kWalkFilesOfTree, IsDayName);
  const bool months = SweepEmptyFolders(m_oDailyWalker, kWalkReportFolders, IsMonthName);
  const bool years = SweepEmptyFolders(m_oMonthlyWalker, kWalkReportFolders, IsYearName);
  return days || months || years;
}

bool CRepository::SweepEmptyFolders(DirectoryWalker& counter, long counterFlags, FolderTest sweeps) {
  m_folderFiles = std::make_unique<std::map<std::string, CFolderFiles>>();
  m_oFolderWalker.WalkDirectoryTree(m_dailyPath + "\\", "*.*", kWalkReportFolders);
  counter.WalkDirectoryTree(m_dailyPath + "\\", "*.*", counterFlags);
  bool removed = false;
  for (const auto& [key, folder] : *m_folderFiles) {
    const std::string path = key.substr(0, key.size() - 1);
    if (folder.FileCount != 0 || !sweeps(path.substr(path.rfind('\\') + 1))) continue;
    removed = SweepFolder(path) || removed;
  }
  m_folderFiles.reset();
  return removed;
}

bool CRepository::SweepFolder(const std::string& path) {
  auto& files = m_application.desktop.files;
  try {
    files.RemoveFolder(path);
    return true;
  } catch (const Error&) {
    if (DateOf(path) || files.List(path).empty()) throw;
    PassOver(path);  // It holds something that is not the program's.
    return false;
  }
}

void CRepository::m_oFolderWalker_ItemFound(const std::string& path, const std::string& fileName, bool&) {
  Assert(m_folderFiles != nullptr, ".m_oFolderWalker_ItemFound: Folder files collection is Nothing");
  if (m_folderFiles) m_folderFiles->emplace(path + fileName + "\\", CFolderFiles{});
}

void CRepository::m_oFileWalker_ItemFound(const std::string& path, const std::string& fileName, bool&) {
  Count(path, text::EndsWithIgnoringCase(fileName, ".lnk"), ".m_oFileWalker_ItemFound");
}

void CRepository::m_oDailyWalker_ItemFound(const std::string& path, const std::string& fileName, bool&) {
  Count(path, IsDayName(fileName), ".m_oDailyWalker_ItemFound");
}

void CRepository::m_oMonthlyWalker_ItemFound(const std::string& path, const std::string& fileName, bool&) {
  Count(path, IsMonthName(fileName), ".m_oMonthlyWalker_ItemFound");
}

void CRepository::Count(const std::string& path, bool counts, const char* procedure) {
  Assert(m_folderFiles != nullptr, procedure + std::string(": Folder files collection is Nothing"));
  if (!m_folderFiles || !counts) return;
  // Items that lie right in the repository's root belong to no folder of the collection.
  const auto folder = m_folderFiles->find(path);
  if (folder != m_folderFiles->end()) ++folder->second.FileCount;
}

}  // namespace dayvane
