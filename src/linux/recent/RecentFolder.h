#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "linux/recent/RecentListFile.h"
#include "linux/recent/RecentShortcuts.h"

namespace dayvane::recent {

/// Keeps a Recent folder of shortcuts in step with the desktop's list of recent documents.
///
/// The folder looks like a shell's own: whole files only, one shortcut for each document ("Report.odt.lnk"), last
/// written at the moment when the document was last opened. The list is a poor witness. Programs lose each other's
/// entries, cut the list short, or empty it by accident; so what was seen once is remembered, and a missing entry means
/// nothing. A shortcut that was removed stays removed until its document is opened again. Only a sound list without
/// any entry is taken for the user's wish: then the folder is emptied too, once what it holds has been captured.
///
/// An opening on another day than the shortcut's waits until the shortcut has been captured, so that every day gets
/// its document. Nothing here ever looks at a document itself: its drive may be asleep.
class RecentFolder {
 public:
  /// The present moment in nanoseconds since 1970, UTC.
  using Clock = std::function<std::int64_t()>;
  using EventLog = std::function<void(const std::string&)>;

  /// Native paths. The Recent folder and the state file are made when missing, with the folders above them.
  struct Paths {
    std::string list;    ///< "recently-used.xbel"
    std::string folder;  ///< the Recent folder
    std::string state;   ///< see RecentState
  };

  RecentFolder(Clock now, const Paths& paths, LinkWriter writeLink, EventLog reportEvent);
  RecentFolder(Clock now, const std::string& list, std::unique_ptr<RecentDisk> disk, LinkWriter writeLink,
               EventLog reportEvent, RecentShortcuts::Limits limits);

  /// Brings the folder up to date: before every listing of it. While the list is unchanged and nothing waits, that is
  /// one look at its status. Does not fail: what cannot be done is reported once and tried again by the next call.
  void Refresh();

  /// Everything that the folder held after the last Refresh has been filed. Between the listing of the folder and this
  /// call there must be no other Refresh, but there may be a Look.
  void Captured();

  /// Takes in what is new in the list and leaves the folder alone: at any time, as soon as the list has changed.
  /// Does nothing before the first Refresh.
  void Look();

 private:
  /// What went wrong with the disk during one call; the first of it is worth a line.
  using Failure = std::optional<std::string>;

  bool Load();
  void ReportLostState();
  std::optional<RecentList> ReadList();
  void ReportCondition(ListCondition condition);
  void TakeList(const RecentList& list);
  void Report(const Failure& failure);

  Clock m_now;
  EventLog m_reportEvent;
  RecentListFile m_list;
  std::string m_dataHome;
  std::unique_ptr<RecentDisk> m_disk;
  RecentShortcuts m_shortcuts;
  bool m_isLoaded = false;
  int m_failedLoads = 0;
  bool m_hasNoState = false;
  ListCondition m_condition = ListCondition::Sound;
  bool m_isFailing = false;
};

}  // namespace dayvane::recent
