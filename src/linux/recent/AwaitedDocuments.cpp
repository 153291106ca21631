// SPDX-License-Identifier: MIT
#include "linux/recent/AwaitedDocuments.h"

#include <algorithm>
#include <utility>

namespace dayvane::recent {

namespace {

/// More than a person saves; what is told of beyond is taken as it is told.
constexpr std::size_t kMostAwaited = 2000;

Sources::News& NewsOf(Tidings& tidings, const std::string& source) {
  for (Sources::News& told : tidings.sources)
    if (told.source == source) return told;
  return tidings.sources.emplace_back(Sources::News{source, {}, std::nullopt});
}

}  // namespace

void AwaitedDocuments::Exchange(Tidings& tidings) {
  if (!m_drives || (tidings.IsEmpty() && m_awaited.empty())) return;
  const LocalDrives drives(m_drives());
  // Who empties the list does not wait for what was in it.
  if (tidings.list && tidings.list->entries == Listing::Entries::None) m_awaited.clear();
  HoldBack(drives, tidings);
  TakeArrived(drives, tidings);
  KeepMemories(tidings);
}

void AwaitedDocuments::TakeArrived(const LocalDrives& drives, Tidings& tidings) {
  for (auto place = m_awaited.begin(); place != m_awaited.end();) {
    if (drives.IsMissing(place->second.place)) {
      ++place;
      continue;
    }
    Awaited arrived = std::move(m_awaited.extract(place++).mapped());
    std::ranges::move(arrived.listed, std::back_inserter(tidings.arrived));
    for (auto& [source, openings] : arrived.told)
      std::ranges::move(openings, std::back_inserter(NewsOf(tidings, source).openings));
  }
}

void AwaitedDocuments::HoldBack(const LocalDrives& drives, Tidings& tidings) {
  if (tidings.list)
    std::erase_if(tidings.list->documents, [&](ListedDocument& document) {
      Awaited* awaited = Await(drives, document.path);
      if (awaited != nullptr) awaited->listed = {std::move(document)};
      return awaited != nullptr;
    });
  for (Sources::News& told : tidings.sources)
    std::erase_if(told.openings, [&](Opening& opening) {
      Awaited* awaited = Await(drives, opening.path);
      if (awaited != nullptr) awaited->told[told.source].push_back(std::move(opening));
      return awaited != nullptr;
    });
}

/// Null when the document need not wait.
AwaitedDocuments::Awaited* AwaitedDocuments::Await(const LocalDrives& drives, const std::string& path) {
  const auto awaited = m_awaited.find(path);
  if (awaited != m_awaited.end()) return &awaited->second;
  if (m_awaited.size() >= kMostAwaited || m_isKnown(path)) return nullptr;
  const auto place = drives.MissingPlace(path);
  return place ? &m_awaited.emplace(path, Awaited{*place, {}, {}}).first->second : nullptr;
}

/// As long as something that a source told of waits, the state keeps the memory from before, so that the next session
/// is told of it again.
void AwaitedDocuments::KeepMemories(Tidings& tidings) {
  for (Sources::News& told : tidings.sources)
    if (told.memory) m_heldMemories[told.source] = *std::exchange(told.memory, std::nullopt);
  for (auto held = m_heldMemories.begin(); held != m_heldMemories.end();) {
    if (IsAnythingAwaitedOf(held->first)) {
      ++held;
      continue;
    }
    NewsOf(tidings, held->first).memory = held->second;
    held = m_heldMemories.erase(held);
  }
}

bool AwaitedDocuments::IsAnythingAwaitedOf(const std::string& source) const {
  return std::any_of(m_awaited.begin(), m_awaited.end(),
                     [&](const auto& awaited) { return awaited.second.told.contains(source); });
}

}  // namespace dayvane::recent
