// SPDX-License-Identifier: MIT
#include <algorithm>
#include <functional>
#include <utility>

#include "linux/files/NativePath.h"
#include "linux/recent/RecentShortcuts.h"

/// What becomes known of the documents when the list and the further sources tell of them.
namespace dayvane::recent {

RecentShortcuts::News RecentShortcuts::TakeIn(const Tidings& tidings) {
  News news;
  if (tidings.list && tidings.list->entries == Listing::Entries::None) news.isEmptied = NoteEmptied();
  if (tidings.list) TakeInListing(*tidings.list);
  if (tidings.list) news.added += TakeInDocuments(tidings.list->documents);
  news.added += TakeInDocuments(tidings.arrived);
  news.added += TakeInOpenings(tidings);
  for (const Sources::News& told : tidings.sources) {
    if (!told.memory || MemoryOf(told.source) == *told.memory) continue;
    m_state.memories[told.source] = *told.memory;
    m_isChanged = true;
  }
  Forget();
  return news;
}

std::string RecentShortcuts::MemoryOf(const std::string& source) const {
  const auto memory = m_state.memories.find(source);
  return memory == m_state.memories.end() ? std::string() : memory->second;
}

void RecentShortcuts::TakeInListing(const Listing& listing) {
  if (listing.entries == Listing::Entries::Some && std::exchange(m_state.isEmptied, false)) m_isChanged = true;
  ++m_readings;
}

/// Makes documents of the list known, in its order, and returns how many are new.
std::size_t RecentShortcuts::TakeInDocuments(const std::vector<ListedDocument>& documents) {
  return static_cast<std::size_t>(std::count_if(documents.begin(), documents.end(), [this](const auto& listed) {
    return Note(listed.path, LastOpening(listed).moment);
  }));
}

/// Takes in all openings in the order in which they happened, whoever tells of them. Returns how many documents are
/// new.
std::size_t RecentShortcuts::TakeInOpenings(const Tidings& tidings) {
  std::size_t added = 0;
  std::vector<std::pair<Moment, std::function<void()>>> steps;
  const auto addListed = [&](const std::vector<ListedDocument>& documents) {
    for (const ListedDocument& listed : documents)
      steps.emplace_back(LastOpening(listed).moment, [&] { TakeInListed(listed, tidings.now); });
  };
  if (tidings.list) addListed(tidings.list->documents);
  addListed(tidings.arrived);
  for (const Sources::News& told : tidings.sources)
    for (const Opening& opening : told.openings)
      steps.emplace_back(opening.moment, [&] {
        if (Note(opening.path, opening.moment)) ++added;
        TakeInTold(told.source, opening, tidings.now);
      });
  std::stable_sort(steps.begin(), steps.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  for (const auto& [moment, step] : steps) step();
  return added;
}

/// Everything now in the folder is deleted as soon as it is captured. False when the list was empty before, too.
bool RecentShortcuts::NoteEmptied() {
  if (std::exchange(m_state.isEmptied, true)) return false;
  for (auto& [path, document] : m_state.documents)
    if (!document.name.empty()) document.isToBeCleared = true;
  m_isChanged = true;
  m_awaitsCapture = true;
  return true;
}

/// Makes a document known that was last opened at a moment, which is 0 when unknown. Returns whether it is new.
bool RecentShortcuts::Note(const std::string& path, Moment opening) {
  const bool isLongForgotten = opening != 0 && opening <= m_state.forgotten.latest;
  if (isLongForgotten && Find(path) == nullptr) return false;
  const auto [place, isNew] = m_state.documents.try_emplace(path);
  place->second.listedAt = m_readings;
  if (!isNew) return false;
  m_isChanged = true;
  if (!files::FromNative(path))
    MarkUnlinkable(*place);
  else if (m_folder == FolderView::Current)
    GiveName(*place);
  return !place->second.isUnlinkable;
}

/// Null for what is not known or can have no shortcut.
RecentDocument* RecentShortcuts::Find(const std::string& path) {
  const auto place = m_state.documents.find(path);
  return place == m_state.documents.end() || place->second.isUnlinkable ? nullptr : &place->second;
}

void RecentShortcuts::TakeInListed(const ListedDocument& listed, Moment now) {
  RecentDocument* document = Find(listed.path);
  if (document == nullptr) return;
  std::vector<Moment> moments;
  for (const Opening& told : listed.openings) moments.push_back(told.moment);
  const Moment before = document->seen;
  const auto opening = TakeNewOpening(*document, moments, now);
  if (!opening) return;
  m_isChanged = true;
  Opening use = LastOpening(listed);
  use.moment = *opening;
  m_state.programs.Note(use);
  // An editor that is closed after midnight tells of its document again, which was opened the day before.
  const auto began = m_beganAt(use);
  if (began && *began <= before) return;
  if (!IsToldByOthers(*document, "", before, began.value_or(*opening))) Count(*document, began.value_or(*opening));
}

void RecentShortcuts::TakeInTold(const std::string& source, const Opening& opening, Moment now) {
  RecentDocument* document = Find(opening.path);
  if (document == nullptr) return;
  const Moment latest = LatestSeen(*document);
  const Moment before = document->told[source].seen;
  const auto moment = TakeNewOpening(*document, source, opening, now);
  if (!moment) return;
  m_isChanged = true;
  m_state.programs.Note({opening.path, *moment, opening.program, opening.mimeType});
  if (IsToldByOthers(*document, source, before, *moment)) return;
  if (*moment > latest)
    Count(*document, *moment);
  else
    CountLate(*document, *moment);
}

void RecentShortcuts::Count(RecentDocument& document, Moment opening) {
  AddPending(document, opening);
  document.isToBeCleared = false;
  m_isChanged = true;
  m_delivery = Delivery::Due;
}

/// Counts an opening that somebody tells of only after later ones are known. Its day is filed from the shortcut too,
/// which then goes back to the opening that it shows now. One that the user removed stays removed.
void RecentShortcuts::CountLate(RecentDocument& document, Moment opening) {
  const bool isRemoved = !document.name.empty() && !document.isPresent && document.pending.empty();
  if (isRemoved) return;
  if (document.isPresent && document.written > opening) AddPending(document, document.written);
  AddPending(document, opening);
  m_delivery = Delivery::Due;
}

}  // namespace dayvane::recent
