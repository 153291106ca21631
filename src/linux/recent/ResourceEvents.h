// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "linux/recent/Source.h"

namespace dayvane::recent {

/// A row of the table ResourceEvent of KDE's activity database: a program used something for a while.
struct ResourceEvent {
  std::int64_t row = 0;               ///< rows written later have higher numbers
  std::string agent;                  ///< the program; see PlainProgramName
  std::string resource;               ///< a native path, an address ("https:…") or a name ("applications:…")
  std::optional<std::int64_t> start;  ///< seconds since 1970
  std::optional<std::int64_t> end;    ///< nothing while it is in use, and for ever when the program was killed
};

/// The openings that these rows tell of, in the order of the rows. What is no path is left out, and what has no moment.
///
/// A program and its parts report one opening up to four times, in any order. Such rows of one document within a
/// minute are one opening, the earliest counts, and none is told that has a row up to `known` among its own.
std::vector<Opening> OpeningsOf(const std::vector<ResourceEvent>& events, std::int64_t known);

/// Of each document the latest opening alone, in the order of the documents' first ones.
std::vector<Opening> LatestOfEach(const std::vector<Opening>& openings);

/// When the use that reached up to this moment began, as far as these rows of its document tell.
///
/// A program that dies leaves its row without an end, until its next row for that document ends both. So the use that
/// began last counts, not the longest, and one without an end lasts a day at most. Rows that end when they begin are
/// single looks at a document, such as a dialog's, and tell of no use.
std::optional<Moment> BeginningOf(const std::vector<ResourceEvent>& events, const Opening& use);

}  // namespace dayvane::recent
