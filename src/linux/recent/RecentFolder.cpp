#include "linux/recent/RecentFolder.h"

#include <utility>

#include "base/Error.h"
#include "linux/glib/GlibHandles.h"

namespace dayvane::recent {

namespace {

/// More new documents at once than a person opens: a program has registered a whole folder.
constexpr std::size_t kFlood = 100;

/// A path for the event log: one line of sound text, whatever bytes it has.
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

/// Runs one step of the work; the next ones do what they can without it. The first failure is kept.
template <class Step>
bool Try(std::optional<std::string>& failure, Step step) {
  try {
    step();
    return true;
  } catch (const Error& error) {
    if (!failure) failure = error.what();
    return false;
  }
}

}  // namespace

RecentFolder::RecentFolder(Clock now, const Paths& paths, LinkWriter writeLink, EventLog reportEvent)
    : RecentFolder(std::move(now), paths.list, std::make_unique<RecentDisk>(paths.folder, paths.state),
                   std::move(writeLink), std::move(reportEvent), RecentShortcuts::Limits()) {}

RecentFolder::RecentFolder(Clock now, const std::string& list, std::unique_ptr<RecentDisk> disk, LinkWriter writeLink,
                           EventLog reportEvent, RecentShortcuts::Limits limits)
    : m_now(std::move(now)),
      m_reportEvent(std::move(reportEvent)),
      m_list(list),
      m_dataHome(list.substr(0, list.rfind('/'))),
      m_disk(std::move(disk)),
      m_shortcuts(*m_disk, std::move(writeLink), limits) {}

void RecentFolder::Refresh() {
  if (!Load()) return;
  const auto list = m_list.IsDue() ? ReadList() : std::nullopt;
  if (!list && !m_shortcuts.IsWorkDue()) return;
  Failure failure;
  const bool isFolderThere = Try(failure, [&] { m_disk->CreateFolder(); });
  const bool isFolderKnown = Try(failure, [&] { m_shortcuts.Observe(); });
  ReportLostState();
  if (list) TakeList(*list);
  Try(failure, [&] { m_shortcuts.Save(); });
  if (isFolderThere && isFolderKnown) Try(failure, [&] { m_shortcuts.Deliver(); });
  Try(failure, [&] { m_shortcuts.Save(); });
  for (const std::string& path : m_shortcuts.TakeLeftOut())
    m_reportEvent("Recent documents: there can be no shortcut to " + Shown(path));
  Report(failure);
  m_isFailing = failure.has_value();
}

void RecentFolder::Captured() {
  if (!m_isLoaded) return;
  Failure failure;
  Try(failure, [&] { m_shortcuts.Captured(); });
  Try(failure, [&] { m_shortcuts.Save(); });
  Report(failure);
}

void RecentFolder::Look() {
  const auto list = m_isLoaded && m_list.IsDue() ? ReadList() : std::nullopt;
  if (!list) return;
  TakeList(*list);
  // Where the state cannot be written, it stays in memory until the next Refresh, which tells of it.
  Failure failure;
  Try(failure, [&] { m_shortcuts.Save(); });
}

/// Whether it is known by now what an earlier session left.
bool RecentFolder::Load() {
  if (m_isLoaded) return true;
  Failure failure;
  auto memory = RecentShortcuts::Memory::Sound;
  Try(failure, [&] { memory = m_shortcuts.Load(); });
  // A disk that fails for a moment must not cost the state, which is written anew as soon as it counts as lost.
  constexpr int kAttempts = 3;
  if (failure && ++m_failedLoads < kAttempts) return false;
  m_isLoaded = true;
  if (failure) m_reportEvent("Recent documents: the state cannot be read: " + *failure);
  m_hasNoState = memory == RecentShortcuts::Memory::None;
  if (memory == RecentShortcuts::Memory::Damaged)
    m_reportEvent("Recent documents: the state is damaged; it is made anew from the list and the Recent folder");
  return true;
}

/// Without a state the folder should hold nothing, as before the first session.
void RecentFolder::ReportLostState() {
  if (std::exchange(m_hasNoState, false) && m_shortcuts.KnowsNotAll())
    m_reportEvent("Recent documents: the state is missing; it is made anew from the list and the Recent folder");
}

/// The list, unless there is nothing to be read.
std::optional<RecentList> RecentFolder::ReadList() {
  ListReading reading = m_list.Read();
  ReportCondition(reading.condition);
  const bool isRead = reading.condition == ListCondition::Sound || reading.condition == ListCondition::Damaged ||
                      reading.condition == ListCondition::CutShort;
  return isRead ? std::optional(std::move(reading.list)) : std::nullopt;
}

void RecentFolder::ReportCondition(ListCondition condition) {
  if (std::exchange(m_condition, condition) == condition || condition == ListCondition::Sound) return;
  m_reportEvent("Recent documents: the list " + m_list.Path() + " " + Complaint(condition));
}

void RecentFolder::TakeList(const RecentList& list) {
  if (!list.entries.empty()) m_shortcuts.NoteFilled();
  const bool isEmptied = list.entries.empty() && list.isWellFormed;
  if (isEmptied && m_shortcuts.NoteEmptied())
    m_reportEvent("Recent documents: the list has been emptied, so the Recent folder will be emptied too");
  const std::size_t added = m_shortcuts.Note(DocumentsOf(list.entries, m_dataHome), m_now());
  if (added > kFlood) m_reportEvent("Recent documents: " + std::to_string(added) + " new documents at once");
}

/// One line for all that fails until a Refresh has found nothing wrong any more.
void RecentFolder::Report(const Failure& failure) {
  if (!failure || std::exchange(m_isFailing, true)) return;
  m_reportEvent("Recent documents: the Recent folder cannot be kept up to date: " + *failure);
}

}  // namespace dayvane::recent
