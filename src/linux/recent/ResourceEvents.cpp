// SPDX-License-Identifier: MIT
#include "linux/recent/ResourceEvents.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "linux/recent/DocumentPath.h"
#include "linux/recent/ProgramNames.h"

namespace dayvane::recent {

namespace {

constexpr Moment kRowsOfOneOpening = 60 * kNanosecondsPerSecond;
constexpr Moment kLongestUnended = Moment{24} * 60 * kRowsOfOneOpening;

/// Of a document's openings the last few alone are compared with its next row: a document of very many rows must not
/// take very long.
constexpr std::size_t kComparedOpenings = 4;

/// An opening of which some rows may have been told already.
struct Told {
  Opening opening;
  bool isKnown = false;
};

bool IsWithinOneOpening(Moment a, Moment b) {
  return a <= b ? b - a <= kRowsOfOneOpening : a - b <= kRowsOfOneOpening;
}

/// When it was opened, or at least used.
std::optional<Moment> MomentOf(const ResourceEvent& event) {
  const auto start = event.start ? MomentFromSeconds(*event.start) : std::nullopt;
  if (start) return start;
  return event.end ? MomentFromSeconds(*event.end) : std::nullopt;
}

class OpeningCollector {
 public:
  void Add(const ResourceEvent& event, std::int64_t known) {
    const auto moment = MomentOf(event);
    auto path = moment ? SimplePath(event.resource) : std::nullopt;
    if (!path) return;
    auto& places = m_places[*path];
    Told* told = Find(places, *moment, event.agent);
    if (told == nullptr) {
      places.push_back(m_told.size());
      m_told.push_back({{std::move(*path), *moment, event.agent, {}}, event.row <= known});
      return;
    }
    told->opening.moment = std::min(told->opening.moment, *moment);
    told->isKnown = told->isKnown || event.row <= known;
  }

  std::vector<Opening> TakeUnknown() {
    std::vector<Opening> openings;
    for (Told& told : m_told)
      if (!told.isKnown) openings.push_back(std::move(told.opening));
    return openings;
  }

 private:
  Told* Find(const std::vector<std::size_t>& places, Moment moment, const std::string& agent) {
    const auto last = places.size() - std::min(places.size(), kComparedOpenings);
    for (auto place = places.size(); place > last; --place) {
      Told& told = m_told[places[place - 1]];
      if (IsWithinOneOpening(told.opening.moment, moment) && IsSameProgram(told.opening.program, agent)) return &told;
    }
    return nullptr;
  }

  std::vector<Told> m_told;
  std::unordered_map<std::string, std::vector<std::size_t>> m_places;  ///< in m_told, by path
};

/// When the event began, if it is a use by this program that reached up to the moment.
std::optional<Moment> StartOfUse(const ResourceEvent& event, const Opening& use) {
  if (!event.start || event.start == event.end || !IsSameProgram(event.agent, use.program)) return std::nullopt;
  const auto start = MomentFromSeconds(*event.start);
  if (!start || (*start > use.moment && !IsWithinOneOpening(*start, use.moment))) return std::nullopt;
  const auto end = event.end ? MomentFromSeconds(*event.end) : std::nullopt;
  const bool hasEnded = end && *end < use.moment && !IsWithinOneOpening(*end, use.moment);
  const bool isForgotten = !end && use.moment > *start && use.moment - *start > kLongestUnended;
  return hasEnded || isForgotten ? std::nullopt : start;
}

}  // namespace

std::vector<Opening> OpeningsOf(const std::vector<ResourceEvent>& events, std::int64_t known) {
  OpeningCollector collector;
  for (const ResourceEvent& event : events) collector.Add(event, known);
  return collector.TakeUnknown();
}

std::vector<Opening> LatestOfEach(const std::vector<Opening>& openings) {
  std::vector<Opening> latest;
  std::unordered_map<std::string, std::size_t> places;
  for (const Opening& opening : openings) {
    const auto [place, isNew] = places.try_emplace(opening.path, latest.size());
    if (isNew)
      latest.push_back(opening);
    else if (opening.moment > latest[place->second].moment)
      latest[place->second] = opening;
  }
  return latest;
}

std::optional<Moment> BeginningOf(const std::vector<ResourceEvent>& events, const Opening& use) {
  std::vector<Moment> starts;
  for (const ResourceEvent& event : events)
    if (const auto start = StartOfUse(event, use)) starts.push_back(*start);
  if (starts.empty()) return std::nullopt;
  const Moment latest = *std::ranges::max_element(starts);
  // The parts of the program report one opening in turn.
  Moment beginning = std::min(latest, use.moment);
  for (const Moment start : starts)
    if (IsWithinOneOpening(start, latest)) beginning = std::min(beginning, start);
  return beginning;
}

}  // namespace dayvane::recent
