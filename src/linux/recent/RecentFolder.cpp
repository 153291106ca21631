// SPDX-License-Identifier: MIT
#include "linux/recent/RecentFolder.h"

#include <utility>

#include "base/Error.h"
#include "linux/glib/GlibHandles.h"

namespace dayvane::recent {

namespace {

/// More new documents at once than a person opens: a program has registered a whole folder.
constexpr std::size_t kFlood = 100;

/// A path as one line of valid text for the event log.
std::string Shown(const std::string& nativePath) {
  const glib::Text name(g_filename_display_name(nativePath.c_str()));
  std::string shown = name.get();
  for (char& c : shown)
    if (static_cast<unsigned char>(c) < 0x20) c = '?';
  return shown;
}

const char* Complaint(ListCondition condition) {
  switch (condition) {
    case ListCondition::Sound:
      break;
    case ListCondition::Damaged:
      return "is damaged; every entry that is whole has been read";
    case ListCondition::CutShort:
      return "is cut short; every entry that is whole has been read";
    case ListCondition::Missing:
      return "is missing";
    case ListCondition::Unreadable:
      return "cannot be read";
    case ListCondition::TooLarge:
      return "is too large to be read";
  }
  return "";
}

Listing::Entries EntriesOf(const RecentList& list) {
  if (!list.entries.empty()) return Listing::Entries::Some;
  return list.isWellFormed ? Listing::Entries::None : Listing::Entries::Unclear;
}

}  // namespace

RecentFolder::RecentFolder(Clock now, const Paths& paths, LinkWriter writeLink, ReportEvent reportEvent,
                           Surroundings surroundings)
    : RecentFolder(std::move(now), paths.list, std::make_unique<RecentDisk>(paths.folder, paths.state),
                   std::move(writeLink), std::move(reportEvent), RecentShortcuts::Limits(), std::move(surroundings)) {}

RecentFolder::RecentFolder(Clock now, const std::string& list, std::unique_ptr<RecentDisk> disk, LinkWriter writeLink,
                           ReportEvent reportEvent, RecentShortcuts::Limits limits, Surroundings surroundings)
    : m_now(std::move(now)),
      m_reportEvent(std::move(reportEvent)),
      m_list(list),
      m_dataHome(list.substr(0, list.rfind('/'))),
      m_disk(std::move(disk)),
      m_sources(std::move(surroundings.sources), m_reportEvent),
      m_admission(surroundings.rules),
      m_shortcuts(
          *m_disk, std::move(writeLink), [this](const Opening& use) { return BeganAt(use); }, limits),
      m_awaited(surroundings.rules.drives, [this](const std::string& path) { return m_shortcuts.Knows(path); }),
      m_names(surroundings.rules.drives, [this](const std::string& path) { return m_shortcuts.Knows(path); }) {}

void RecentFolder::Refresh() {
  if (!Load()) return;
  const auto tidings = ReadAll();
  if (!tidings && !m_shortcuts.IsWorkDue()) return;
  const auto outcome = m_shortcuts.Refresh(tidings);
  // Before the first session there is no state, but then the folder is empty too.
  const bool wasMissing = std::exchange(m_memory, RecentShortcuts::Memory::Sound) == RecentShortcuts::Memory::Missing;
  if (wasMissing && outcome.isForeignFound)
    m_reportEvent("Recent documents: the state is missing; it is made anew from the list and the Recent folder");
  ReportNews(outcome.news);
  for (const std::string& path : outcome.unlinkable)
    m_reportEvent("Recent documents: there can be no shortcut to " + Shown(path));
  ReportFailure(outcome.failure);
  m_isFailing = outcome.failure.has_value();
}

void RecentFolder::RememberOpenings() {
  const auto tidings = m_memory ? ReadAll() : std::nullopt;
  if (tidings) ReportNews(m_shortcuts.Remember(*tidings));
}

/// Whether the state that the last session left is loaded, or given up as lost.
bool RecentFolder::Load() {
  if (m_memory) return true;
  try {
    m_memory = m_shortcuts.Load();
    if (m_memory == RecentShortcuts::Memory::Damaged)
      m_reportEvent("Recent documents: the state is damaged; it is made anew from the list and the Recent folder");
  } catch (const Error& error) {
    // A disk that fails for a moment must not cost the state: once given up, it is overwritten.
    constexpr int kAttempts = 3;
    if (++m_failedLoads < kAttempts) return false;
    m_memory = RecentShortcuts::Memory::Damaged;
    m_reportEvent("Recent documents: the state cannot be read: " + std::string(error.what()));
  }
  return true;
}

/// What the list and the further sources tell now; nothing when nothing is new.
std::optional<Tidings> RecentFolder::ReadAll() {
  if (!m_admission.IsOpen()) return std::nullopt;
  Tidings tidings;
  tidings.list = ReadList();
  tidings.sources = m_sources.Read([this](const std::string& source) { return m_shortcuts.MemoryOf(source); });
  if (!tidings.IsEmpty()) m_admission.Wake();
  m_admission.Filter(tidings);
  m_awaited.Exchange(tidings);
  // What has waited may have been excluded meanwhile.
  m_admission.Filter(tidings);
  m_names.Unify(tidings);
  if (tidings.IsEmpty()) return std::nullopt;
  tidings.now = m_now();
  return tidings;
}

/// When a use began, which KDE knows by the place that links lead to.
std::optional<Moment> RecentFolder::BeganAt(Opening use) {
  const auto began = m_sources.BeganAt(use);
  const std::string place = m_names.PlaceOf(use.path);
  if (began || place == use.path) return began;
  use.path = place;
  return m_sources.BeganAt(use);
}

/// What the list says now; nothing when it is unchanged or cannot be read.
std::optional<Listing> RecentFolder::ReadList() {
  if (!m_list.IsDue()) return std::nullopt;
  const ListReading reading = m_list.Read();
  ReportCondition(reading.condition);
  const bool isRead = reading.condition == ListCondition::Sound || reading.condition == ListCondition::Damaged ||
                      reading.condition == ListCondition::CutShort;
  if (!isRead) return std::nullopt;
  return Listing{EntriesOf(reading.list), DocumentsOf(reading.list.entries, m_dataHome)};
}

void RecentFolder::ReportCondition(ListCondition condition) {
  if (std::exchange(m_condition, condition) == condition || condition == ListCondition::Sound) return;
  m_reportEvent("Recent documents: the list " + m_list.Path() + " " + Complaint(condition));
}

void RecentFolder::ReportNews(const RecentShortcuts::News& news) {
  if (news.isEmptied)
    m_reportEvent("Recent documents: the list has been emptied, so the Recent folder will be emptied too");
  if (news.added > kFlood) m_reportEvent("Recent documents: " + std::to_string(news.added) + " new documents at once");
}

/// Reports the first failure only, until a Refresh succeeds.
void RecentFolder::ReportFailure(const Failure& failure) {
  if (!failure || std::exchange(m_isFailing, true)) return;
  m_reportEvent("Recent documents: the Recent folder cannot be kept up to date: " + *failure);
}

}  // namespace dayvane::recent
