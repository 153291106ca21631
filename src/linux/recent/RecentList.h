#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "linux/recent/Moment.h"

namespace dayvane::recent {

/// One document of the desktop's list of recent documents.
struct RecentEntry {
  std::string href;      ///< its address as written ("file:///home/ana/Report%201.odt"); may be empty
  std::string mimeType;  ///< "text/plain"; empty when not given
  bool isPrivate = false;

  /// Times of which the latest is the last opening; empty when none is known. They are those of the programs that
  /// opened the document, and "visited"; only where no program gives a time, "modified" and "added": renaming an entry
  /// moves its "modified", and "visited" mostly is the first opening.
  std::vector<Moment> openings;
};

/// What a list holds, as far as it can be read.
struct RecentList {
  std::vector<RecentEntry> entries;  ///< in the order of the list
  bool isWellFormed = false;         ///< a whole list without a fault
  bool isComplete = false;           ///< it reaches its end: nothing is cut off
};

/// Reads the text of "recently-used.xbel" (https://www.freedesktop.org/wiki/Specifications/desktop-bookmark-spec/).
///
/// Many programs write that file, not all with care, and other readers lose the whole list to one odd entry. Here every
/// complete <bookmark> counts, before and after a damaged one, wherever it stands and whatever else stands there.
/// A bookmark of more than a megabyte, or with hundreds of attributes in one tag, is passed over like a damaged one.
RecentList ParseRecentList(std::string_view bytes);

}  // namespace dayvane::recent
