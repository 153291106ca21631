// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/ReportEvent.h"
#include "platform/Shell.h"
#include "windows/launch/Launcher.h"
#include "windows/launch/Paths.h"
#include "windows/launch/Shortcuts.h"
#include "windows/launch/SpecialFolders.h"

namespace dayvane {

/// The shell of Windows, which keeps the Recent folder itself. Needs a launch::ComApartment for what only the shell
/// can read and write; without one links are read and written by the program alone.
class WindowsShell : public platform::Shell {
 public:
  WindowsShell(platform::FileSystem& files, const ReportEvent& reportEvent) : m_shortcuts(files, reportEvent) {}

  std::string SpecialFolderPath(int number) override { return launch::SpecialFolder(number); }
  void RefreshRecentFolder() override {}
  void RecentFolderCaptured() override {}
  platform::ReadLink ReadShellLink(const std::string& path) override { return m_shortcuts.Read(path); }
  void CreateShellLink(const std::string& path, const platform::ShellLink& link) override {
    m_shortcuts.Write(path, link);
  }
  int Open(const std::string& target, const std::string& workingDirectory, std::int32_t showCommand) override {
    return launch::Open(target, workingDirectory, showCommand);
  }
  void Run(const std::string& commandLine) override { launch::Run(commandLine); }
  std::string WindowsFolder() override;
  std::string DisplayPath(const std::string& path) override { return launch::PlainPath(path); }

 private:
  launch::Shortcuts m_shortcuts;
};

}  // namespace dayvane
