// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "linux/recent/LastPrograms.h"
#include "linux/recent/RecentDocument.h"
#include "linux/recent/ShortcutNames.h"

namespace dayvane::recent {

/// What is remembered of the recent list from one session to the next.
///
/// Its file is text in UTF-8, one fact a line, the fields of a line separated by tabs:
///
///     dayvane-recent 1
///     emptied                                    the list was found empty, and has stayed so
///     forgotten  LATEST  NUMBER  HASH,HASH,...   see Forgotten; hashes in hexadecimal
///     source  SOURCE  MEMORY                     see Source
///     program  TYPE  MOMENT  PROGRAM             see LastPrograms
///     document  SEEN  WRITTEN  FLAGS  FUTURE  PENDING  NAME  PATH  [SOURCE  SEEN  FUTURE  PROGRAM]...
///     end  COUNT                                 of the documents
///
/// Moments are nanoseconds since 1970. FLAGS is any of "c" (isCaptured), "o" (isUnlinkable) and "x" (isToBeCleared);
/// FUTURE is two moments with a colon between them; PENDING is moments with commas between them; a field without a
/// value is "-". What the further sources told of a document follows its path. In texts a percent sign, a control
/// character, and every byte beyond ASCII of a text that is not UTF-8 are written "%XX". A line of any other form, a
/// second line for a path or a name, and a line without its line end are skipped; the rest of such a file still counts.
/// A file without the first line is not read.
struct RecentState {
  std::map<std::string, RecentDocument> documents;  ///< by native path
  std::map<std::string, std::string> memories;      ///< of the further sources, by name
  LastPrograms programs;
  Forgotten forgotten;
  bool isEmptied = false;
};

std::string WriteState(const RecentState& state);

struct StateReading {
  RecentState state;
  bool isDamaged = false;  ///< the text is not a whole and sound state; its sound lines were read
};

StateReading ReadState(std::string_view text);

}  // namespace dayvane::recent
