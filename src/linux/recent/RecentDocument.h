#pragma once

#include <optional>
#include <string>
#include <vector>

#include "linux/recent/Moment.h"

namespace dayvane::recent {

/// What is remembered of one document of the recent list: which of its openings are known, and its shortcut.
///
/// A shortcut stands for one opening, the last. Where an earlier one of another day has not been captured yet, the
/// next waits its turn in `pending`, so that each counts for its own day.
struct RecentDocument {
  std::string name;             ///< of the shortcut, native ("Report.odt.lnk"); empty until it gets one
  Moment seen = 0;              ///< the latest opening that was taken from the list
  Moment written = 0;           ///< the shortcut's last-written time, as found or written last; 0 without a shortcut
  bool isCaptured = false;      ///< the shortcut of that time has been filed
  bool isLeftOut = false;       ///< its path has no form that the program can spell
  bool isToBeCleared = false;   ///< the user emptied the list: the shortcut goes when it has been captured
  std::vector<Moment> pending;  ///< openings that the shortcut has not told of yet, earliest first, one a day

  /// Range of the times that lay in the future when they were seen; 0 when there were none. They have been counted,
  /// and must not count again when their time comes.
  Moment futureFrom = 0;
  Moment futureTo = 0;

  // What follows is found anew in every session.
  bool isPresent = false;      ///< the shortcut lies in the folder
  std::uint64_t listedAt = 0;  ///< number of the last reading of the list that held the document

  friend bool operator==(const RecentDocument&, const RecentDocument&) = default;
};

/// Takes the times of the list in, and returns the opening they tell of when it is a new one.
///
/// A new opening is later than the last known one. One in the future counts as `now`, once; a document without any
/// known time counts as opened `now` when it is seen for the first time, and never again.
std::optional<Moment> TakeNewOpening(RecentDocument& document, const std::vector<Moment>& times, Moment now);

/// Queues an opening for the shortcut. Of several on one day, which count once, the latest stays.
void AddPending(RecentDocument& document, Moment opening);

}  // namespace dayvane::recent
