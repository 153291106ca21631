// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "linux/recent/LocalDrives.h"
#include "linux/recent/RecentShortcuts.h"

namespace dayvane::recent {

/// Documents that are told of before they are there. A file dialog tells of the name that a document is to be saved
/// under; when that fails, the document never comes to be.
///
/// A document that is told of for the first time, and is missing while its folder is there, waits here until there is a
/// file. One on a drive that is not local is not looked for: it is taken as it is told. Nothing of what waits is kept
/// on the disk. The next session is told of it again: by the lists, and by the other sources because their memory of
/// the time before is kept as long as something of theirs waits.
class AwaitedDocuments {
 public:
  using IsKnown = std::function<bool(const std::string& path)>;

  /// Without a mount table nothing waits.
  AwaitedDocuments(MountTable drives, IsKnown isKnown) : m_drives(std::move(drives)), m_isKnown(std::move(isKnown)) {}

  /// Takes out of the tidings what has to wait, and puts in what has come. Costs one look at a file's status for each
  /// document that waits.
  void Exchange(Tidings& tidings);

 private:
  struct Awaited {
    std::string place;                                 ///< the path without symbolic links
    std::vector<ListedDocument> listed;                ///< as the list had it last, or nothing
    std::map<std::string, std::vector<Opening>> told;  ///< by source
  };

  void TakeArrived(const LocalDrives& drives, Tidings& tidings);
  void HoldBack(const LocalDrives& drives, Tidings& tidings);
  Awaited* Await(const LocalDrives& drives, const std::string& path);
  void KeepMemories(Tidings& tidings);
  bool IsAnythingAwaitedOf(const std::string& source) const;

  MountTable m_drives;
  IsKnown m_isKnown;
  std::map<std::string, Awaited> m_awaited;           ///< by path
  std::map<std::string, std::string> m_heldMemories;  ///< newer than those that are kept, by source
};

}  // namespace dayvane::recent
