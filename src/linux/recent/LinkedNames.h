// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "linux/recent/LocalDrives.h"
#include "linux/recent/RecentShortcuts.h"

namespace dayvane::recent {

/// Gives a document one name that is told of under two: the desktop's list has the name by which it was opened, KDE's
/// record the one that symbolic links lead to. The name that is known already stays, because days may be filed under
/// it; of two new ones it is the list's, which the user chose.
///
/// Links are followed only where one may lead to what is told of at the moment, and not off the local drives.
class LinkedNames {
 public:
  using IsKnown = std::function<bool(const std::string& path)>;

  /// Without a mount table all names stay as they are.
  LinkedNames(MountTable drives, IsKnown isKnown) : m_drives(std::move(drives)), m_isKnown(std::move(isKnown)) {}

  /// Renames what the tidings tell of.
  void Unify(Tidings& tidings);

  /// Where a document of the last tidings lies; its path where no link leads to it.
  std::string PlaceOf(const std::string& path) const;

 private:
  void TakeIn(std::vector<ListedDocument>& documents);
  void TakeKnownName(ListedDocument& document) const;
  std::string NameOf(const Opening& opening) const;
  bool LeadsTo(const std::string& path, const std::string& place) const;

  MountTable m_drives;
  IsKnown m_isKnown;
  std::optional<LocalDrives> m_local;  ///< when the last tidings came
  // The paths that the list has, by their last parts and by the moments at which they were opened last.
  std::unordered_multimap<std::string, std::string> m_byLastPart;
  std::multimap<Moment, std::string> m_byMoment;
};

}  // namespace dayvane::recent
