// SPDX-License-Identifier: MIT
#include "capture/NearbyDays.h"

#include <algorithm>

#include "fs/Dir.h"

namespace dayvane {

bool NearbyDays::Hold(const CShortcut& shortcut) {
  const Date day = shortcut.Modified().Midnight();
  auto known = m_folders.find(day);
  if (known == m_folders.end()) known = m_folders.emplace(day, FoldersAround(day)).first;
  return std::ranges::any_of(known->second, [&](const std::string& folder) {
    const auto copy = m_files.Status(folder + "\\" + shortcut.FileName());
    return copy && copy->written == shortcut.LastWritten();
  });
}

std::vector<std::string> NearbyDays::FoldersAround(const Date& day) const {
  std::vector<std::string> folders;
  for (const int days : {-2, -1, 1, 2}) {  // time zones lie up to 26 hours apart
    std::string folder = m_repository.DayFolder(day.AddDays(days));
    if (FolderExists(m_files, folder)) folders.push_back(std::move(folder));
  }
  return folders;
}

}  // namespace dayvane
