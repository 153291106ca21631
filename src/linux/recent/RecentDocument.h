// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "linux/recent/Moment.h"

namespace dayvane::recent {

/// What is remembered of one document of the recent list: which of its openings are known, and its shortcut.
///
/// A shortcut shows one opening, the last. While it still shows an opening of an earlier day that has not been
/// captured, newer openings wait in `pending`, so that each counts for its own day.
struct RecentDocument {
  std::string name;             ///< of the shortcut, native ("Report.odt.lnk"); empty until it gets one
  Moment seen = 0;              ///< the latest opening found in the list
  Moment written = 0;           ///< the shortcut's last-written time, as found or written last; 0 without a shortcut
  bool isCaptured = false;      ///< the shortcut of that time has been filed
  bool isUnlinkable = false;    ///< no shortcut can lead to it, for instance because its path is not UTF-8
  bool isToBeCleared = false;   ///< the user emptied the list: the shortcut is deleted once it is captured
  std::vector<Moment> pending;  ///< openings that the shortcut has not shown yet, earliest first, one a day

  /// Range of the times that lay in the future when they were seen; 0 when there were none. They have been counted
  /// already and must not count again when their time comes.
  Moment futureFrom = 0;
  Moment futureTo = 0;

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

/// Queues an opening for the shortcut. Several on one day count once; the latest is kept.
void AddPending(RecentDocument& document, Moment opening);

}  // namespace dayvane::recent
