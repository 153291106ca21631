// SPDX-License-Identifier: MIT
#include "linux/recent/RecentDocument.h"

#include <algorithm>

namespace dayvane::recent {

namespace {

/// Openings that may wait: one a day for almost three years without a single capture.
constexpr std::size_t kMostPending = 1000;

bool IsClose(Moment a, Moment b) {
  return std::max(a, b) - std::min(a, b) <= kOneOpening;
}

/// Calls `visit` with the name of each source and the latest moment that it told of.
template <class Visit>
void ForEachSource(const RecentDocument& document, Visit visit) {
  if (document.seen != 0) visit(std::string(), document.seen);
  for (const auto& [source, telling] : document.told) visit(source, telling.seen);
}

void MoveEarlier(RecentDocument& document, Moment from, Moment to) {
  const auto place = std::find(document.pending.begin(), document.pending.end(), from);
  if (place == document.pending.end() || to >= from) return;
  document.pending.erase(place);
  AddPending(document, to);
}

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

std::optional<Moment> TakeNewOpening(RecentDocument& document, const std::string& source, const Opening& opening,
                                     Moment now) {
  Telling& telling = document.told[source];
  const Moment moment = opening.moment;
  if (moment == telling.future || moment <= telling.seen) return std::nullopt;
  if (moment > now) {
    telling.future = moment;
    return now;
  }
  const bool isAgent = telling.seen != 0 && telling.program != opening.program && IsClose(telling.seen, moment);
  telling.seen = moment;
  telling.program = opening.program;
  return isAgent ? std::nullopt : std::optional(moment);
}

bool IsToldByOthers(RecentDocument& document, const std::string& source, Moment before, Moment opening) {
  std::vector<Moment> same;
  ForEachSource(document, [&](const std::string& other, Moment told) {
    if (other != source && IsClose(told, opening) && !IsClose(told, before)) same.push_back(told);
  });
  for (const Moment told : same) MoveEarlier(document, told, opening);
  return !same.empty();
}

Moment LatestSeen(const RecentDocument& document) {
  Moment latest = 0;
  ForEachSource(document, [&](const std::string&, Moment told) { latest = std::max(latest, told); });
  return latest;
}

void AddPending(RecentDocument& document, Moment opening) {
  auto& pending = document.pending;
  const auto later = std::upper_bound(pending.begin(), pending.end(), opening);
  if (later != pending.end() && OnSameLocalDay(*later, opening)) return;
  if (later != pending.begin() && OnSameLocalDay(*(later - 1), opening)) {
    *(later - 1) = opening;
    return;
  }
  pending.insert(later, opening);
  if (pending.size() > kMostPending) pending.erase(pending.begin());
}

}  // namespace dayvane::recent
