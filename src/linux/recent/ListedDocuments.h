#pragma once

#include <string>
#include <vector>

#include "linux/recent/RecentList.h"

namespace dayvane::recent {

/// A document of the recent list under its native path, with the times of all its entries.
struct ListedDocument {
  std::string path;
  std::vector<Moment> openings;  ///< see RecentEntry
};

/// The documents that a list names, each once, in the order of the list. Entries that the user wants private, folders,
/// what lies in the trash (`dataHome` is the user's data folder) and addresses of other machines are left away.
std::vector<ListedDocument> DocumentsOf(const std::vector<RecentEntry>& entries, const std::string& dataHome);

}  // namespace dayvane::recent
