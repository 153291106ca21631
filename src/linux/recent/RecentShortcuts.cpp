#include "linux/recent/RecentShortcuts.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "base/Error.h"
#include "base/Text.h"
#include "linux/files/NativePath.h"

namespace dayvane::recent {

namespace {

/// A link to the document, or nothing when its path cannot be spelled.
std::optional<platform::ShellLink> LinkTo(const std::string& nativePath) {
  const auto target = files::FromNative(nativePath);
  if (!target) return std::nullopt;
  platform::ShellLink link;
  link.target = *target;
  // No working folder: the program then takes the document's own, in the letters that it is written with.
  return link;
}

}  // namespace

RecentShortcuts::RecentShortcuts(RecentDisk& disk, LinkWriter writeLink, Limits limits)
    : m_disk(disk), m_writeLink(std::move(writeLink)), m_limits(limits) {}

RecentShortcuts::Memory RecentShortcuts::Load() {
  const auto text = m_disk.ReadState();
  if (!text) return Memory::None;
  StateReading reading = ReadState(*text);
  m_state = std::move(reading.state);
  for (const auto& [path, document] : m_state.documents)
    if (!document.name.empty()) m_names.Take(document.name, path);
  m_isChanged = reading.isDamaged;
  return reading.isDamaged ? Memory::Damaged : Memory::Sound;
}

void RecentShortcuts::Save() {
  if (!m_isChanged) return;
  m_disk.WriteState(WriteState(m_state));
  m_isChanged = false;
}

void RecentShortcuts::Observe() {
  m_isFolderKnown = false;
  m_isDeliveryDue = true;
  const auto items = m_disk.List();
  m_strangers.clear();
  m_adoptable.clear();
  m_isAdoptableRead = false;
  for (auto& [path, document] : m_state.documents) document.isPresent = false;
  for (const FolderItem& item : items) {
    const std::string* owner = m_names.Owner(item.name);
    RecentDocument* document = owner == nullptr ? nullptr : &m_state.documents.at(*owner);
    if (document != nullptr && document->name == item.name && item.isFile)
      ObserveShortcut(*document, item);
    else
      m_strangers.emplace(text::ToLower(item.name), item);
  }
  m_isFolderKnown = true;
  m_wasObserved = true;
}

void RecentShortcuts::ObserveShortcut(RecentDocument& document, const FolderItem& item) {
  // Shortcuts are not flushed to the disk one by one, so a power cut may have left this one with a name and no bytes.
  if (item.size == 0 && !m_wasObserved) {
    if (document.pending.empty()) document.pending.push_back(document.seen);
    return;
  }
  document.isPresent = true;
  // The program writes shortcuts too: it puts one back when its document is opened from a list of the program's.
  if (document.written != item.written) {
    document.written = item.written;
    document.isCaptured = false;
  }
  if (!document.isCaptured) m_awaitsCapture = true;
}

std::size_t RecentShortcuts::Note(const std::vector<ListedDocument>& documents, Moment now) {
  ++m_readings;
  std::size_t added = 0;
  for (const ListedDocument& listed : documents)
    if (NoteDocument(listed, now)) ++added;
  Forget();
  return added;
}

bool RecentShortcuts::NoteDocument(const ListedDocument& listed, Moment now) {
  if (IsLongForgotten(listed)) return false;
  const auto [place, isNew] = m_state.documents.try_emplace(listed.path);
  RecentDocument& document = place->second;
  document.listedAt = m_readings;
  if (isNew) {
    m_isChanged = true;
    if (!LinkTo(listed.path))
      LeaveOut(*place);
    else if (m_isFolderKnown)
      GiveName(*place);
  }
  if (document.isLeftOut) return false;
  const auto opening = TakeNewOpening(document, listed.openings, now);
  if (!opening) return isNew;
  AddPending(document, *opening);
  document.isToBeCleared = false;
  m_isChanged = true;
  m_isDeliveryDue = true;
  return isNew;
}

bool RecentShortcuts::IsLongForgotten(const ListedDocument& listed) const {
  if (m_state.forgotten.latest == 0 || listed.openings.empty() || m_state.documents.contains(listed.path)) return false;
  return *std::max_element(listed.openings.begin(), listed.openings.end()) <= m_state.forgotten.latest;
}

void RecentShortcuts::LeaveOut(Document& document) {
  document.second.isLeftOut = true;
  document.second.pending.clear();
  m_leftOut.push_back(document.first);
  m_isChanged = true;
}

/// The bytes of its link; a document whose link cannot be written is left out.
std::optional<std::string> RecentShortcuts::LinkBytes(Document& document) {
  try {
    if (const auto link = LinkTo(document.first)) return m_writeLink(*link);
  } catch (const Error&) {
    // The format has no room for this path, today or later: trying again would be in vain.
  }
  LeaveOut(document);
  return std::nullopt;
}

void RecentShortcuts::GiveName(Document& document) {
  auto& [path, memory] = document;
  const bool isAdopted = Adopt(document);
  if (memory.isLeftOut) return;
  if (!isAdopted)
    memory.name = m_names.Choose(path.substr(path.rfind('/') + 1),
                                 [&](const std::string& name) { return m_strangers.contains(text::ToLower(name)); });
  m_names.Take(memory.name, path);
  m_isChanged = true;
}

/// Finds the document's own shortcut among the files that nobody knows: the state was lost, or is an old one.
bool RecentShortcuts::Adopt(Document& document) {
  ReadAdoptable();
  const auto bytes = m_adoptable.empty() ? std::nullopt : LinkBytes(document);
  const auto found = bytes ? m_adoptable.find(*bytes) : m_adoptable.end();
  if (found == m_adoptable.end()) return false;
  const FolderItem& item = found->second;
  RecentDocument& memory = document.second;
  memory.name = item.name;
  memory.written = item.written;
  memory.seen = std::max(memory.seen, item.written);
  memory.isPresent = true;
  m_awaitsCapture = true;
  m_strangers.erase(text::ToLower(item.name));
  m_adoptable.erase(found);
  return true;
}

void RecentShortcuts::ReadAdoptable() {
  if (std::exchange(m_isAdoptableRead, true)) return;
  for (const auto& [lowerName, item] : m_strangers) {
    if (!item.isFile || !item.name.ends_with(".lnk")) continue;
    try {
      if (auto bytes = m_disk.ReadShortcut(item.name)) m_adoptable.emplace(std::move(*bytes), item);
    } catch (const Error&) {
      // A file that cannot be read stays a stranger.
    }
  }
}

void RecentShortcuts::Forget() {
  if (m_state.documents.size() <= m_limits.documents || !m_isFolderKnown) return;
  std::vector<std::map<std::string, RecentDocument>::iterator> dispensable;
  for (auto document = m_state.documents.begin(); document != m_state.documents.end(); ++document) {
    const RecentDocument& memory = document->second;
    if (!memory.isPresent && memory.pending.empty() && memory.listedAt != m_readings) dispensable.push_back(document);
  }
  std::sort(dispensable.begin(), dispensable.end(),
            [](const auto& a, const auto& b) { return a->second.seen < b->second.seen; });
  dispensable.resize(std::min(dispensable.size(), m_state.documents.size() - m_limits.documents));
  for (const auto& document : dispensable) {
    m_names.Forget(document->second.name, document->second.seen);
    m_state.documents.erase(document);
    m_isChanged = true;
  }
}

void RecentShortcuts::NoteFilled() {
  if (std::exchange(m_state.isEmptied, false)) m_isChanged = true;
}

bool RecentShortcuts::NoteEmptied() {
  if (std::exchange(m_state.isEmptied, true)) return false;
  for (auto& [path, document] : m_state.documents)
    if (!document.name.empty()) document.isToBeCleared = true;
  m_isChanged = true;
  m_awaitsCapture = true;
  return true;
}

void RecentShortcuts::Deliver() {
  m_isDeliveryDue = false;
  m_isHeldBack = false;
  std::exception_ptr failure;
  for (Document& document : m_state.documents) {
    if (document.second.pending.empty()) continue;
    try {
      DeliverTo(document);
    } catch (const Error&) {
      // One bad name must not keep the other shortcuts from being written.
      if (!failure) failure = std::current_exception();
      m_isDeliveryDue = true;
    }
  }
  m_isFolderKnown = false;
  if (failure) std::rethrow_exception(failure);
}

void RecentShortcuts::DeliverTo(Document& document) {
  RecentDocument& memory = document.second;
  if (memory.name.empty()) GiveName(document);
  while (!memory.pending.empty()) {
    const Moment opening = memory.pending.front();
    const bool isSameDay = memory.isPresent && OnSameLocalDay(memory.written, opening);
    if (memory.isPresent && !memory.isCaptured && !isSameDay) {
      m_isHeldBack = true;
      return;
    }
    // A shortcut of that day with that time or a later one says all there is to say of the day.
    const bool isTold = isSameDay && memory.written >= opening;
    if (!isTold && !Write(document, opening)) return;
    memory.pending.erase(memory.pending.begin());
    m_isChanged = true;
  }
}

/// False when the document has to be left out.
bool RecentShortcuts::Write(Document& document, Moment opening) {
  const auto bytes = LinkBytes(document);
  if (!bytes) return false;
  RecentDocument& memory = document.second;
  m_disk.WriteShortcut(memory.name, *bytes, opening);
  // What the file system made of the time: not every one keeps nanoseconds.
  memory.written = m_disk.Written(memory.name).value_or(opening);
  memory.isPresent = true;
  memory.isCaptured = false;
  m_awaitsCapture = true;
  return true;
}

void RecentShortcuts::Captured() {
  if (m_isHeldBack) m_isDeliveryDue = true;
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

/// Deletes a captured shortcut. One that was written anew since stays: its document was opened from the program.
void RecentShortcuts::RemoveUnchanged(RecentDocument& document) {
  const auto written = m_disk.Written(document.name);
  if (written && *written != document.written) return;
  if (written) m_disk.DeleteShortcut(document.name);
  document.isPresent = false;
}

}  // namespace dayvane::recent
