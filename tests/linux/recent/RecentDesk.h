// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "linux/recent/RecentFolder.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::testing {

inline constexpr const char* kReport = "/home/ana/Report.odt";
inline constexpr const char* kMorning = "2026-11-20T08:00:00Z";
inline constexpr const char* kNoon = "2026-11-20T12:00:00Z";

/// What the user's session ends with in a test of kills. No Error: nobody catches it.
struct SessionEnds {};

/// A disk on which a test can end the session before any change, or make changes fail.
class TestDisk : public recent::RecentDisk {
 public:
  struct Control {
    int changes = 0;           ///< made so far
    int changesUntilEnd = -1;  ///< before the session ends; negative: it does not
    bool isFull = false;
    std::string refusedName;  ///< a shortcut that cannot be written
  };

  TestDisk(const std::string& folder, const std::string& state, Control& control)
      : RecentDisk(folder, state), m_state(state), m_control(control) {}

  void WriteShortcut(const std::string& name, std::string_view bytes, recent::Moment written) override;
  void DeleteShortcut(const std::string& name) override;

  /// As a whole, but without waiting for the disk, which would be most of a test's time.
  void WriteState(std::string_view text) override;

 private:
  void BeforeChange();

  std::string m_state;
  Control& m_control;
};

/// What a further source of a test knows and does.
struct SourceScript {
  std::vector<recent::Opening> openings;  ///< all that it knows
  bool isForgetful = false;               ///< tells all of it each time, and keeps no memory of what it told
  std::string failure;                    ///< what reading it fails with; empty: it does not
  std::optional<recent::Moment> began;    ///< of every use, or of this document's alone:
  std::string usedPath;
  int readings = 0;  ///< so far
};

/// A user's desktop in a temporary folder: the list, the Recent folder kept from it, and a program that captures.
/// The user lives in UTC unless the test says otherwise.
class RecentDesk {
 public:
  RecentDesk();
  ~RecentDesk();

  /// A bookmark of a list, as GTK writes it.
  static std::string Bookmark(const std::string& href, const std::string& opened);

  /// Puts a list in place by renaming, as GTK does.
  void PutList(const std::string& text);
  void PutBookmarks(const std::string& bookmarks);

  /// A list of documents and the times of their last openings: {{"/home/ana/a.txt", "2026-11-20T14:00:00.5Z"}}.
  void PutDocuments(const std::map<std::string, std::string>& documents);

  /// Has a further source know of an opening.
  void Tell(const std::string& source, const std::string& path, const std::string& moment,
            const std::string& program = "editor");

  /// A session of the program. The one before ends without notice.
  recent::RecentFolder& Start();

  /// One poll of the program: refreshes, files what the folder holds, tells that it has captured.
  void Poll();

  /// Days on which the program filed a document: {"/home/ana/a.txt 2026-11-20"}.
  const std::set<std::string>& Filed() const { return m_filed; }

  /// Last-written times of the shortcuts by name, "2026-11-20T14:00:00.500000000Z".
  std::map<std::string, std::string> Shortcuts() const;

  /// Names, times, inodes and states of all files that are kept: the same as long as nothing is written.
  std::string Traces() const;

  std::string Shortcut(const std::string& name) const { return m_folder / ("Recent/" + name); }

  TemporaryFolder m_folder;
  const std::string m_list = m_folder / "share/recently-used.xbel";
  const std::string m_recent = m_folder / "Recent";
  const std::string m_state = m_folder / "state/recent.txt";
  recent::Moment m_now;  ///< 2026-12-01T12:00:00Z at first
  std::vector<std::string> m_events;
  TestDisk::Control m_disk;
  recent::RecentShortcuts::Limits m_limits;
  recent::Rules m_rules;                          ///< none at first
  std::map<std::string, SourceScript> m_sources;  ///< by name; those that are there when a session starts are its

 private:
  LocalZone m_zone{"UTC"};
  std::unique_ptr<recent::RecentFolder> m_session;
  std::set<std::string> m_filed;
};

/// "2026-11-20T14:00:00.5Z" as a moment.
recent::Moment At(const std::string& text);

/// A moment as "2026-11-20T14:00:00.500000000Z".
std::string Written(recent::Moment moment);

}  // namespace dayvane::testing
