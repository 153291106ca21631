// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "linux/recent/RecentList.h"
#include "linux/recent/Source.h"

namespace dayvane::recent {

/// A document of a recent list under its native path, with the times of all its entries.
struct ListedDocument {
  std::string path;
  std::vector<Opening> openings;  ///< see RecentEntry
  std::string mimeType;           ///< of its first entry; empty when not given
};

/// The latest of the document's openings; one at moment 0, which is unknown, where the list gives no time.
Opening LastOpening(const ListedDocument& document);

/// What one reading of the list says.
struct Listing {
  /// Whether the list has entries, whatever they name. A damaged list in which no entry could be read is Unclear.
  enum class Entries { Some, None, Unclear };

  Entries entries = Entries::Unclear;
  std::vector<ListedDocument> documents;
};

/// The documents that a list names, each once, in the order of the list. Skips private entries, folders, the contents
/// of the trash (`dataHome` is the user's data folder) and addresses on other machines.
std::vector<ListedDocument> DocumentsOf(const std::vector<RecentEntry>& entries, const std::string& dataHome);

}  // namespace dayvane::recent
