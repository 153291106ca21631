// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "app/Date.h"
#include "capture/CShortcut.h"
#include "platform/FileSystem.h"
#include "repository/CRepository.h"

namespace dayvane {

/// The days close to that of an opening, on one of which it may be filed already: then the user's clock was that of
/// another time zone. Which of their folders exist is found out once a poll.
class NearbyDays {
 public:
  NearbyDays(platform::FileSystem& files, const CRepository& repository) : m_files(files), m_repository(repository) {}

  /// To be called at the beginning of each poll.
  void Forget() { m_folders.clear(); }

  /// Whether a shortcut of that name and moment lies on one of them. Fails when the disk does not answer.
  bool Hold(const CShortcut& shortcut);

 private:
  std::vector<std::string> FoldersAround(const Date& day) const;

  platform::FileSystem& m_files;
  const CRepository& m_repository;
  std::map<Date, std::vector<std::string>> m_folders;  ///< around a day, those that exist
};

}  // namespace dayvane
