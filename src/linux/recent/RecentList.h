// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "linux/recent/Moment.h"

namespace dayvane::recent {

/// One document of the desktop's list of recent documents.
struct RecentEntry {
  struct Use {
    Moment moment = 0;
    std::string program;  ///< as the list names it; empty when it cannot be told
  };

  std::string href;      ///< its address as written ("file:///home/ana/Report%201.odt"); may be empty
  std::string mimeType;  ///< "text/plain"; empty when not given
  bool isPrivate = false;

  /// The latest of these is the last opening; empty when no time is known. They are the times of the programs that
  /// opened the document, and "visited". "modified" and "added" count only where no program gives a time, because
  /// renaming an entry changes "modified". "visited" is mostly the first opening.
  std::vector<Use> openings;
};

/// What a list holds, as far as it can be read.
struct RecentList {
  std::vector<RecentEntry> entries;  ///< in the order of the list
  bool isWellFormed = false;         ///< a whole list without a mistake
  bool isComplete = false;           ///< not cut off
};

/// Reads the text of "recently-used.xbel" (https://www.freedesktop.org/wiki/Specifications/desktop-bookmark-spec/).
///
/// Many programs write that file, some of them carelessly, and other readers lose the whole list to one odd entry. Here
/// every complete <bookmark> counts, before and after damaged ones, wherever it stands. Odd characters cost no entry.
/// A bookmark of more than a megabyte, or with hundreds of attributes in one tag, is skipped like a damaged one.
RecentList ParseRecentList(std::string_view bytes);

}  // namespace dayvane::recent
