// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "app/Application.h"
#include "app/Asserting.h"
#include "app/Date.h"
#include "fs/DirectoryWalker.h"
#include "repository/CFolderFiles.h"

namespace dayvane {

/// The only record of which day had which documents: the folder tree
///
///     <program folder>\Daily\<yyyy>\<month name>\<dd>\*.lnk
///
/// with the month's full name in the user's language and two-digit days. Months that were filed under another language
/// keep their names; those of every language that the program was ever run in are known from the settings. A day folder
/// holds a copy of each shortcut filed for the day and, beside them, shortcuts to the programs that open them. There is
/// no index: a day has documents when its folder is there.
///
/// "Daily" may be a symbolic link to a folder elsewhere. Its path stays the one in the program folder all the same, so
/// that what was recorded before the folder moved is still named rightly. Links below it are not followed.
class CRepository : private Asserting {
 public:
  static constexpr const char* ClassName = "CRepository";

  /// Creates the root folder when it is missing; an error when it is a link to a folder that cannot be made. The
  /// application must outlive this object.
  explicit CRepository(Application& application);

  const std::string& DailyPath() const { return m_dailyPath; }

  /// The folder that a date's documents are filed in.
  std::string DayFolder(const Date& date) const;

  /// The latest day that has a folder, or the zero date when there is none. Fails with kTypeMismatch when the latest
  /// year has no month, or its latest month no day.
  Date FindLatestDay() const;

  /// The same by the month names of the languages that the record was kept in before; the zero date instead of failing.
  Date FindLatestDayOfFormerLanguages() const;

  /// Deletes, after one question, every day that lies more than `purgeAge` whole days back. Returns whether any went.
  bool PurgeOldShortcuts(int purgeAge);

  /// Asks the user about the days up to the purge date. True for Yes.
  bool ConfirmPurge() const;

  /// Deletes a day folder with its files. The documents themselves are never touched.
  void PurgeDay(const std::string& folder) const;

  /// Removes the day, month and year folders that hold nothing. Returns whether any went.
  bool PurgeEmptyFolders();

 private:
  using FolderTest = bool (*)(const std::string& name);

  void m_oPurgeWalker_ItemFound(const std::string& path, const std::string& fileName, bool& cancel);
  void m_oFolderWalker_ItemFound(const std::string& path, const std::string& fileName, bool& cancel);
  void m_oFileWalker_ItemFound(const std::string& path, const std::string& fileName, bool& cancel);
  void m_oDailyWalker_ItemFound(const std::string& path, const std::string& fileName, bool& cancel);
  void m_oMonthlyWalker_ItemFound(const std::string& path, const std::string& fileName, bool& cancel);

  bool SweepEmptyFolders(DirectoryWalker& counter, long counterFlags, FolderTest sweeps);
  std::optional<std::string> LatestYear() const;
  Date LatestDayIn(const std::string& year, const platform::MonthNames& months) const;
  std::optional<Date> DateOf(const std::string& dayFolder) const;
  bool SweepFolder(const std::string& path);
  void PassOver(const std::string& folder);
  void Count(const std::string& path, bool counts, const char* procedure);

  Application& m_application;
  std::string m_dailyPath;
  Date m_purgeDate;
  bool m_purged = false;
  bool m_purgeAsked = false;
  bool m_purgeConfirmed = false;
  bool m_passedOver = false;                                           ///< a folder was, and that is logged once a run
  std::unique_ptr<std::map<std::string, CFolderFiles>> m_folderFiles;  ///< by path with its trailing "\"
  DirectoryWalker m_oDailyWalker;
  DirectoryWalker m_oFileWalker;
  DirectoryWalker m_oFolderWalker;
  DirectoryWalker m_oMonthlyWalker;
  DirectoryWalker m_oPurgeWalker;
};

}  // namespace dayvane
