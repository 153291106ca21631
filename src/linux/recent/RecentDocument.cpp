// SPDX-License-Identifier: MIT
#include "linux/recent/RecentDocument.h"

#include <algorithm>

namespace dayvane::recent {

namespace {

/// Openings that may wait: one a day for almost three years without a single capture.
constexpr std::size_t kMostPending = 1000;

/// The times that the list gives for a document, split at the present moment.
struct ListedTimes {
  std::optional<Moment> past;        ///< the latest that is not in the future
  std::optional<Moment> futureFrom;  ///< the earliest in the future: a clock was wrong
  std::optional<Moment> futureTo;    ///< the latest in the future
};

ListedTimes Split(const RecentDocument& document, const std::vector<Moment>& times, Moment now) {
  ListedTimes split;
  for (const Moment time : times) {
    const bool wasFuture = time >= document.futureFrom && time <= document.futureTo;
    if (time > now) {
      split.futureFrom = std::min(split.futureFrom.value_or(time), time);
      split.futureTo = std::max(split.futureTo.value_or(time), time);
    } else if (!wasFuture) {
      split.past = std::max(split.past.value_or(time), time);
    }
  }
  return split;
}

void TakeFuture(RecentDocument& document, const ListedTimes& times) {
  const bool isFirst = document.futureTo == 0;
  document.futureFrom = isFirst ? *times.futureFrom : std::min(document.futureFrom, *times.futureFrom);
  document.futureTo = *times.futureTo;
}

std::optional<Moment> NewOpening(RecentDocument& document, const ListedTimes& times, Moment now) {
  if (times.futureTo && *times.futureTo > std::max(document.seen, document.futureTo)) {
    TakeFuture(document, times);
    return now;
  }
  if (times.past) return *times.past > document.seen ? times.past : std::nullopt;
  const bool isFirstSight = document.seen == 0;
  return isFirstSight ? std::optional(now) : std::nullopt;
}

}  // namespace

std::optional<Moment> TakeNewOpening(RecentDocument& document, const std::vector<Moment>& times, Moment now) {
  const auto opening = NewOpening(document, Split(document, times, now), now);
  if (opening) document.seen = std::max(document.seen, *opening);
  return opening;
}

void AddPending(RecentDocument& document, Moment opening) {
  auto& pending = document.pending;
  if (!pending.empty() && OnSameLocalDay(pending.back(), opening)) {
    pending.back() = std::max(pending.back(), opening);
    return;
  }
  if (pending.size() == kMostPending) pending.erase(pending.begin());
  pending.push_back(opening);
}

}  // namespace dayvane::recent
