// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "base/ReportEvent.h"
#include "controls/Deferred.h"
#include "links/ShellLinkReader.h"
#include "linux/launch/Launcher.h"
#include "linux/recent/Exclusions.h"
#include "linux/recent/RecentFolder.h"
#include "linux/recent/RecentListWatch.h"
#include "platform/Shell.h"

namespace dayvane {

/// The shell of a Linux desktop: its default programs, its file manager, shell links in files, and a Recent folder
/// kept in step with the desktop's list of recent documents.
class LinuxShell : public platform::Shell {
 public:
  /// `dataFolder` is native; the Recent folder lies in it.
  LinuxShell(platform::FileSystem& files, const std::string& dataFolder, const ReportEvent& reportEvent);

  std::string SpecialFolderPath(int number) override;
  void RefreshRecentFolder() override {
    m_exclusions.Refresh();
    m_recentFolder.Refresh();
  }
  void RecentFolderCaptured() override { m_recentFolder.Captured(); }

  /// The program that last opened a document of a content type, as the desktop names it; nothing when nobody knows.
  std::optional<std::string> LastProgramFor(const std::string& type) const {
    return m_recentFolder.LastProgramFor(type);
  }
  platform::ReadLink ReadShellLink(const std::string& path) override { return m_links.Read(path); }
  void CreateShellLink(const std::string& path, const platform::ShellLink& link) override;
  int Open(const std::string& target, const std::string& workingDirectory, std::int32_t /*showCommand*/) override {
    return m_launcher.Open(target, workingDirectory);
  }
  void Run(const std::string& commandLine) override { m_launcher.Run(commandLine); }
  std::string WindowsFolder() override { return "C:\\WINDOWS"; }
  std::string DisplayPath(const std::string& path) override { return launch::Launcher::DisplayPath(path); }

 private:
  platform::FileSystem& m_files;
  std::string m_recentPath;  ///< native
  links::ShellLinkReader m_links;
  launch::Launcher m_launcher;
  recent::Exclusions m_exclusions;
  recent::RecentFolder m_recentFolder;
  controls::Deferred m_deferred;
  recent::RecentListWatch m_watch;
};

}  // namespace dayvane
