// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/ReportEvent.h"
#include "linux/recent/Admission.h"
#include "linux/recent/AwaitedDocuments.h"
#include "linux/recent/LinkedNames.h"
#include "linux/recent/RecentListFile.h"
#include "linux/recent/RecentShortcuts.h"

namespace dayvane::recent {

/// Keeps a Recent folder of shortcuts in step with the desktop's list of recent documents.
///
/// The folder looks like a shell's own: whole files only, one shortcut for each document ("Report.odt.lnk"), last
/// written when the document was last opened. The list alone cannot be trusted: programs lose each other's entries, cut
/// the list short, or empty it by accident. So an entry that was seen once is remembered, and a missing one means
/// nothing. A shortcut that the user removed stays removed until its document is opened again. Only a sound list
/// without entries counts as cleared by the user; the folder is then emptied too, once its shortcuts have been
/// captured.
///
/// Further sources tell of openings that the list does not know, and of others that it knows too: those count once (see
/// RecentDocument.h). What they lose or empty means nothing.
///
/// An opening on a later day waits until the shortcut has been captured for its own day, so that the document is filed
/// under both. The documents themselves are never touched, because their drive may be asleep: only whether there is one
/// is looked at, on a local drive, when it is told of for the first time, and where a link leads to it (LinkedNames).
class RecentFolder {
 public:
  /// The present moment in nanoseconds since 1970, UTC.
  using Clock = std::function<std::int64_t()>;

  /// Native paths. A missing Recent folder or state file is created, with the folders above it.
  struct Paths {
    std::string list;    ///< "recently-used.xbel"
    std::string folder;  ///< the Recent folder
    std::string state;   ///< see RecentState
  };

  /// What there is besides the list.
  struct Surroundings {
    std::vector<std::unique_ptr<Source>> sources;  ///< that tell of opened documents too
    Rules rules;                                   ///< by which documents are recorded
  };

  RecentFolder(Clock now, const Paths& paths, LinkWriter writeLink, ReportEvent reportEvent,
               Surroundings surroundings = {});
  RecentFolder(Clock now, const std::string& list, std::unique_ptr<RecentDisk> disk, LinkWriter writeLink,
               ReportEvent reportEvent, RecentShortcuts::Limits limits, Surroundings surroundings = {});

  /// Brings the folder up to date; to be called before the folder is listed. While nothing is new and nothing waits,
  /// this costs one look at the status of the list and of each further source. Never fails: a problem is reported once,
  /// and the next call tries again.
  void Refresh();

  /// Call when everything that the folder held after the last Refresh has been filed. No other Refresh may come between
  /// listing the folder and this call; RememberOpenings may.
  void Captured() {
    if (m_memory) ReportFailure(m_shortcuts.Captured());
  }

  /// Remembers new openings of all sources without changing the folder. Call it whenever the list has changed: the next
  /// program to write the list may drop the entry. Does nothing before the first Refresh.
  void RememberOpenings();

  /// See RecentShortcuts.
  std::optional<std::string> LastProgramFor(const std::string& type) const { return m_shortcuts.LastProgramFor(type); }

 private:
  bool Load();
  std::optional<Tidings> ReadAll();
  std::optional<Listing> ReadList();
  std::optional<Moment> BeganAt(Opening use);
  void ReportCondition(ListCondition condition);
  void ReportNews(const RecentShortcuts::News& news);
  void ReportFailure(const Failure& failure);

  Clock m_now;
  ReportEvent m_reportEvent;
  RecentListFile m_list;
  std::string m_dataHome;
  std::unique_ptr<RecentDisk> m_disk;
  Sources m_sources;
  Admission m_admission;
  RecentShortcuts m_shortcuts;
  AwaitedDocuments m_awaited;
  LinkedNames m_names;
  std::optional<RecentShortcuts::Memory> m_memory;  ///< left by the last session; empty until loaded
  int m_failedLoads = 0;
  ListCondition m_condition = ListCondition::Sound;  ///< as last reported
  bool m_isFailing = false;
};

}  // namespace dayvane::recent
