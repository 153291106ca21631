// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "linux/recent/Source.h"

namespace dayvane::recent {

/// What one of the further sources has told of a document.
struct Telling {
  Moment seen = 0;      ///< the latest of the openings that it has told of
  Moment future = 0;    ///< the latest that lay in the future when it was told, and has been counted; 0: none did
  std::string program;  ///< that opened the document at `seen`

  friend bool operator==(const Telling&, const Telling&) = default;
};

/// What is remembered of one document of the recent list: which of its openings are known, and its shortcut.
///
/// A shortcut shows one opening, the last. While it still shows an opening of an earlier day that has not been
/// captured, newer openings wait in `pending`, so that each counts for its own day.
struct RecentDocument {
  std::string name;             ///< of the shortcut, native ("Report.odt.lnk"); empty until it gets one
  Moment seen = 0;              ///< the latest opening found in the desktop's list
  Moment written = 0;           ///< the shortcut's last-written time, as found or written last; 0 without a shortcut
  bool isCaptured = false;      ///< the shortcut of that time has been filed
  bool isUnlinkable = false;    ///< no shortcut can lead to it, for instance because its path is not UTF-8
  bool isToBeCleared = false;   ///< the user emptied the list: the shortcut is deleted once it is captured
  std::vector<Moment> pending;  ///< openings that the shortcut has not shown yet, earliest first, one a day

  /// Range of the times that lay in the future when they were seen; 0 when there were none. They have been counted
  /// already and must not count again when their time comes.
  Moment futureFrom = 0;
  Moment futureTo = 0;

  std::map<std::string, Telling> told;  ///< by the name of the source

  // Not kept in the state: found out again in every session.
  bool isPresent = false;      ///< the shortcut lies in the folder
  std::uint64_t listedAt = 0;  ///< number of the last reading of the list that had the document

  friend bool operator==(const RecentDocument&, const RecentDocument&) = default;
};

/// Compares the times in the list with what is known of the document; returns the opening they show if it is new.
///
/// A new opening is later than the last known one. A time in the future counts as `now`, once. A document without any
/// known time counts as opened `now` when it is first seen, and not again.
std::optional<Moment> TakeNewOpening(RecentDocument& document, const std::vector<Moment>& times, Moment now);

/// The same for an opening that one of the further sources tells of: what it told before is not new, nor is what a
/// person does again with another program of the same source within a minute. A time in the future counts as `now`.
std::optional<Moment> TakeNewOpening(RecentDocument& document, const std::string& source, const Opening& opening,
                                     Moment now);

/// Whether other sources than `source`, which is empty for the desktop's list, have told already of the opening at
/// this moment. Two sources tell of one opening when they tell of moments within a minute; the earlier one counts then,
/// if none has reached the shortcut. `before` is the latest moment that this source had told until now: it may tell of
/// the same opening only once.
bool IsToldByOthers(RecentDocument& document, const std::string& source, Moment before, Moment opening);

/// The latest opening that any source has told of; 0 when there is none.
Moment LatestSeen(const RecentDocument& document);

/// Queues an opening for the shortcut. Several on one day count once; the latest is kept.
void AddPending(RecentDocument& document, Moment opening);

}  // namespace dayvane::recent
