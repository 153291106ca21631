// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "linux/LinuxRegistry.h"
#include "linux/recent/RecentFolder.h"
#include "shell/MDayvaneMain.h"
#include "tests/support/System.h"
#include "tests/support/TestDesktop.h"

namespace dayvane::faults {

/// A user in a temporary folder, at noon of 21 November 2026, who opens documents and whose program keeps everything in
/// real files: the Recent folder, the days, the favorites, the settings. Questions are answered with Yes.
class FaultyDesk {
 public:
  FaultyDesk();

  /// Puts a document into the desktop's list as opened at a moment, "2026-11-20T08:00:00Z". On another day than before
  /// only once the program has seen the list.
  void Open(const std::string& document, const std::string& moment);

  /// Files a document under a day so old that the next start purges it.
  void FileLongAgo(const std::string& document);

  /// What no fault may leave on the disk: files that are not whole, strange files, changed documents.
  std::vector<std::string> Damage() const;

  /// Openings that are not filed as they were made last, and documents whose count is not that of their days.
  std::vector<std::string> Losses() const;

 private:
  friend class Session;

  std::string DocumentPath(const std::string& document) const { return m_desktop.folder / ("Documents/" + document); }
  void WriteList() const;
  std::string ComplaintAbout(const std::string& path) const;

  testing::LocalZone m_zone{"UTC"};
  testing::TestDesktop m_desktop;
  std::map<std::string, std::string> m_listed;                         ///< last opening by document
  std::map<std::string, std::map<std::string, std::string>> m_opened;  ///< last opening by document and its day
};

/// One run of the program on the desk.
class Session {
 public:
  explicit Session(FaultyDesk& desk);

  /// A tick of the timer; where a failure has stopped it, the user resumes instead.
  void Poll();

  /// The user's session ends, and the program with it.
  void End();

 private:
  class Shell;
  class Registry;

  recent::RecentFolder m_recent;
  std::unique_ptr<platform::Shell> m_shell;
  LinuxRegistry m_settings;
  std::unique_ptr<platform::Registry> m_registry;
  platform::Desktop m_parts;
  Program m_program;
};

}  // namespace dayvane::faults
