// SPDX-License-Identifier: MIT
#include "repository/CRepository.h"

#include <algorithm>

#include "app/IgnoreErrors.h"
#include "base/Error.h"
#include "base/Text.h"
#include "fs/Dir.h"
#include "settings/MonthLanguages.h"

namespace dayvane {

namespace {

/// Where the root is a symbolic link, which is how its user keeps the record on another disk, the folder that it leads
/// to is meant. It is made when only itself is missing: what it should lie in may be a disk that is not there today.
void CreateRootFolder(platform::FileSystem& files, const std::string& path) {
  const std::string folder = files.Resolve(path);
  try {
    files.CreateFolder(folder);
  } catch (const Error& error) {
    if (folder == path && error.Number() == kFileAlreadyExists) return;  // On every start but the first it is there.
    if (folder == path) throw;
    if (!FolderExists(files, folder))
      throw Error(error.Number(), path + " is a link that leads to no folder: " + error.Description(), folder);
  }
}

}  // namespace

CRepository::CRepository(Application& application)
    : Asserting(application, ClassName),
      m_application(application),
      m_dailyPath(application.folder + "\\" + "Daily"),
      m_oDailyWalker(application.desktop.files),
      m_oFileWalker(application.desktop.files),
      m_oFolderWalker(application.desktop.files),
      m_oMonthlyWalker(application.desktop.files),
      m_oPurgeWalker(application.desktop.files) {
  const auto connect = [this](DirectoryWalker& walker, auto handler) {
    walker.ItemFound.Connect([this, handler](const std::string& path, const std::string& name, bool& cancel) {
      (this->*handler)(path, name, cancel);
    });
  };
  connect(m_oDailyWalker, &CRepository::m_oDailyWalker_ItemFound);
  connect(m_oFileWalker, &CRepository::m_oFileWalker_ItemFound);
  connect(m_oFolderWalker, &CRepository::m_oFolderWalker_ItemFound);
  connect(m_oMonthlyWalker, &CRepository::m_oMonthlyWalker_ItemFound);
  connect(m_oPurgeWalker, &CRepository::m_oPurgeWalker_ItemFound);
  CreateRootFolder(application.desktop.files, m_dailyPath);
  application.monthLanguages =
      settings::RememberMonthNames(application.desktop.registry, application.desktop.dates.monthNames);
}

std::string CRepository::DayFolder(const Date& date) const {
  const auto& dates = m_application.desktop.dates;
  return m_dailyPath + "\\" + Format(date, "yyyy", dates) + "\\" + Format(date, "mmmm", dates) + "\\" +
         Format(date, "dd", dates);
}

std::optional<std::string> CRepository::LatestYear() const {
  auto& files = m_application.desktop.files;
  if (!FolderExists(files, files.Resolve(m_dailyPath))) return std::nullopt;
  int yearNumber = m_application.Now().Year();
  std::string year = Format(m_application.Now(), "yyyy", m_application.desktop.dates);
  while (!FolderExists(files, m_dailyPath + "\\" + year)) {
    if (--yearNumber < 1) return std::nullopt;
    year = std::to_string(yearNumber);
  }
  return year;
}

Date CRepository::LatestDayIn(const std::string& year, const platform::MonthNames& months) const {
  auto& files = m_application.desktop.files;
  const auto monthFolder = [&](std::size_t n) { return m_dailyPath + "\\" + year + "\\" + months[n - 1]; };
  std::size_t month = months.size();
  while (month > 0 && !FolderExists(files, monthFolder(month))) --month;
  const std::string days = monthFolder(month > 0 ? month : 1);
  int day = 31;
  while (day > 0 && !FolderExists(files, days + "\\" + text::Padded(day, 2))) --day;
  // Without a month or a day the text is not a date, and that is the error to report.
  return ParseMonthFirst(std::to_string(month) + "/" + std::to_string(day) + "/" + year, m_application.desktop.dates);
}

Date CRepository::FindLatestDay() const {
  Assert(!text::Trim(m_dailyPath).empty(), ".FindLatestDay: Daily path is missing");
  const auto year = LatestYear();
  if (!year) return {};
  const auto& dates = m_application.desktop.dates;
  // The name of month n is that of a date in month n, here of the year 98, so that it is the user's own.
  platform::MonthNames months;
  for (std::size_t n = 1; n <= months.size(); ++n)
    months[n - 1] = Format(ParseMonthFirst(std::to_string(n) + "/98", dates), "mmmm", dates);
  return LatestDayIn(*year, months);
}

Date CRepository::FindLatestDayOfFormerLanguages() const {
  Date latest;
  const auto year = LatestYear();
  if (!year) return latest;
  for (const auto& months : m_application.monthLanguages)
    IgnoreErrors([&] { latest = std::max(latest, LatestDayIn(*year, months)); });
  return latest;
}

}  // namespace dayvane
