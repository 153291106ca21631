// SPDX-License-Identifier: MIT
#include "linux/recent/RecentShortcuts.h"

#include <algorithm>
#include <utility>

#include "base/Error.h"
#include "linux/files/NativePath.h"

namespace dayvane::recent {

namespace {

/// Runs one step of several that do not depend on each other, and keeps the first failure.
template <class Step>
bool Try(Failure& failure, Step step) {
  try {
    step();
    return true;
  } catch (const Error& error) {
    if (!failure) failure = error.what();
    return false;
  }
}

}  // namespace

RecentShortcuts::Memory RecentShortcuts::Load() {
  const auto text = m_disk.ReadState();
  if (!text) return Memory::Missing;
  StateReading reading = ReadState(*text);
  m_state = std::move(reading.state);
  for (const auto& [path, document] : m_state.documents)
    if (!document.name.empty()) m_names.Take(document.name, path);
  m_isChanged = reading.isDamaged;
  return reading.isDamaged ? Memory::Damaged : Memory::Sound;
}

RecentShortcuts::Outcome RecentShortcuts::Refresh(const std::optional<Tidings>& tidings) {
  Outcome outcome;
  Failure& failure = outcome.failure;
  const bool isFolderThere = Try(failure, [&] { m_disk.CreateFolder(); });
  const bool isFolderSeen = Try(failure, [&] { LookAtFolder(); });
  outcome.isForeignFound = !m_foreign.IsEmpty();
  if (tidings) outcome.news = TakeIn(*tidings);
  Try(failure, [&] { Save(); });
  if (isFolderThere && isFolderSeen) Deliver(failure);
  if (isFolderSeen) m_folder = FolderView::Outdated;
  Try(failure, [&] { Save(); });
  outcome.unlinkable = std::exchange(m_unlinkable, {});
  return outcome;
}

RecentShortcuts::News RecentShortcuts::Remember(const Tidings& tidings) {
  const News news = TakeIn(tidings);
  Failure failure;
  Try(failure, [&] { Save(); });
  return news;
}

Failure RecentShortcuts::Captured() {
  Failure failure;
  Try(failure, [&] { MarkCaptured(); });
  Try(failure, [&] { Save(); });
  return failure;
}

void RecentShortcuts::Save() {
  if (!m_isChanged) return;
  m_disk.WriteState(WriteState(m_state));
  m_isChanged = false;
}

void RecentShortcuts::LookAtFolder() {
  m_delivery = Delivery::Due;
  const auto items = m_disk.List();
  m_foreign.Clear();
  for (auto& [path, document] : m_state.documents) document.isPresent = false;
  for (const FolderItem& item : items) {
    const std::string* owner = m_names.Owner(item.name);
    RecentDocument* document = owner == nullptr ? nullptr : &m_state.documents.at(*owner);
    if (document != nullptr && document->name == item.name && item.isFile)
      LookAtShortcut(*document, item);
    else
      m_foreign.Add(item);
  }
  m_folder = FolderView::Current;
}

void RecentShortcuts::LookAtShortcut(RecentDocument& document, const FolderItem& item) {
  // Shortcuts are not flushed to the disk one by one, so a power cut may have left this one with a name and no bytes.
  if (item.size == 0 && m_folder == FolderView::Never) {
    if (document.pending.empty()) document.pending.push_back(LatestSeen(document));
    return;
  }
  document.isPresent = true;
  // The main program writes shortcuts too: when a document is opened from one of its views, it puts the shortcut back.
  if (document.written != item.written) {
    document.written = item.written;
    document.isCaptured = false;
  }
  if (!document.isCaptured) m_awaitsCapture = true;
}

void RecentShortcuts::MarkUnlinkable(Document& document) {
  document.second.isUnlinkable = true;
  document.second.pending.clear();
  m_unlinkable.push_back(document.first);
  m_isChanged = true;
}

/// The bytes of the link to a document; nothing when there can be none.
std::optional<std::string> RecentShortcuts::LinkBytes(Document& document) {
  platform::ShellLink link;  // without a working folder: the document's own is then used, spelled as on the disk
  try {
    link.target = files::FromNative(document.first).value_or("");
    if (!link.target.empty()) return m_writeLink(link);
  } catch (const Error&) {
    // The format has no room for this path, and never will have.
  }
  MarkUnlinkable(document);
  return std::nullopt;
}

void RecentShortcuts::GiveName(Document& document) {
  auto& [path, memory] = document;
  const bool isAdopted = Adopt(document);
  if (memory.isUnlinkable) return;
  if (!isAdopted)
    memory.name =
        m_names.Choose(path.substr(path.rfind('/') + 1), [&](const std::string& name) { return m_foreign.Has(name); });
  m_names.Take(memory.name, path);
  m_isChanged = true;
}

/// Finds the document's own shortcut among the foreign ones, where it is when the state was lost or is an old copy.
bool RecentShortcuts::Adopt(Document& document) {
  const auto bytes = m_foreign.HasShortcuts() ? LinkBytes(document) : std::nullopt;
  const auto item = bytes ? m_foreign.Adopt(*bytes) : std::nullopt;
  if (!item) return false;
  RecentDocument& memory = document.second;
  memory.name = item->name;
  memory.written = item->written;
  memory.seen = std::max(memory.seen, item->written);
  memory.isPresent = true;
  m_awaitsCapture = true;
  return true;
}

void RecentShortcuts::Forget() {
  if (m_state.documents.size() <= m_limits.documents || m_folder != FolderView::Current) return;
  std::vector<std::map<std::string, RecentDocument>::iterator> dispensable;
  for (auto document = m_state.documents.begin(); document != m_state.documents.end(); ++document) {
    const RecentDocument& memory = document->second;
    if (!memory.isPresent && memory.pending.empty() && memory.listedAt != m_readings) dispensable.push_back(document);
  }
  std::sort(dispensable.begin(), dispensable.end(),
            [](const auto& a, const auto& b) { return LatestSeen(a->second) < LatestSeen(b->second); });
  dispensable.resize(std::min(dispensable.size(), m_state.documents.size() - m_limits.documents));
  for (const auto& document : dispensable) {
    m_names.Forget(document->second.name, LatestSeen(document->second));
    m_state.documents.erase(document);
    m_isChanged = true;
  }
}

/// Writes what is pending. One bad name does not keep the other shortcuts from being written.
void RecentShortcuts::Deliver(Failure& failure) {
  m_delivery = Delivery::Done;
  bool isComplete = true;
  for (Document& document : m_state.documents)
    if (!document.second.pending.empty()) isComplete = Try(failure, [&] { DeliverTo(document); }) && isComplete;
  if (!isComplete) m_delivery = Delivery::Due;
}

void RecentShortcuts::DeliverTo(Document& document) {
  RecentDocument& memory = document.second;
  if (memory.name.empty()) GiveName(document);
  // A source may tell of many days at once, of which each capture files one. The last is not to wait for all others.
  const bool isHistory = !memory.isPresent && memory.pending.size() > 1;
  if (isHistory && !Write(document, memory.pending.back())) return;
  while (!memory.pending.empty()) {
    const Moment opening = memory.pending.front();
    const bool isSameDay = memory.isPresent && OnSameLocalDay(memory.written, opening);
    if (memory.isPresent && !memory.isCaptured && !isSameDay) {
      m_delivery = Delivery::WaitsForCapture;
      return;
    }
    // A shortcut with that time, or a later one of the same day, already shows all that counts of the day.
    const bool isTold = isSameDay && memory.written >= opening;
    if (!isTold && !Write(document, opening)) return;
    memory.pending.erase(memory.pending.begin());
    m_isChanged = true;
  }
}

/// False when there can be no shortcut to the document.
bool RecentShortcuts::Write(Document& document, Moment opening) {
  const auto bytes = LinkBytes(document);
  if (!bytes) return false;
  RecentDocument& memory = document.second;
  m_disk.WriteShortcut(memory.name, *bytes, opening);
  // Read back, because not every file system keeps nanoseconds.
  memory.written = m_disk.Written(memory.name).value_or(opening);
  memory.isPresent = true;
  memory.isCaptured = false;
  m_awaitsCapture = true;
  return true;
}

void RecentShortcuts::MarkCaptured() {
  if (m_delivery == Delivery::WaitsForCapture) m_delivery = Delivery::Due;
  if (!m_awaitsCapture) return;
  for (auto& [path, document] : m_state.documents) {
    if (!document.isPresent || document.isCaptured) continue;
    document.isCaptured = true;
    m_isChanged = true;
  }
  RemoveCleared();
  Prune();
  m_awaitsCapture = false;
}

void RecentShortcuts::RemoveCleared() {
  for (auto& [path, document] : m_state.documents) {
    if (!document.isToBeCleared || !document.pending.empty()) continue;
    if (document.isPresent) RemoveUnchanged(document);
    document.isToBeCleared = false;
    m_isChanged = true;
  }
}

void RecentShortcuts::Prune() {
  std::vector<RecentDocument*> present;
  for (auto& [path, document] : m_state.documents)
    if (document.isPresent) present.push_back(&document);
  if (present.size() <= m_limits.shortcuts) return;
  std::sort(present.begin(), present.end(), [](const auto* a, const auto* b) { return a->written < b->written; });
  present.resize(present.size() - m_limits.shortcuts);
  for (RecentDocument* document : present)
    if (document->isCaptured && document->pending.empty()) RemoveUnchanged(*document);
}

/// Deletes a captured shortcut, unless it was rewritten since: then its document was opened from the program.
void RecentShortcuts::RemoveUnchanged(RecentDocument& document) {
  const auto written = m_disk.Written(document.name);
  if (written && *written != document.written) return;
  if (written) m_disk.DeleteShortcut(document.name);
  document.isPresent = false;
}

}  // namespace dayvane::recent
