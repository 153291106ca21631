// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "shell/FMain.h"
#include "tests/support/TestDesktop.h"
#include "tests/windows/RegistryTree.h"
#include "windows/WindowsFileSystem.h"
#include "windows/WindowsRegistry.h"
#include "windows/WindowsShell.h"
#include "windows/WindowsShellIcons.h"
#include "windows/WindowsWindowing.h"

namespace dayvane::bench {

/// The shell of Windows with a Recent folder of its own.
class ShellWithRecentFolder : public WindowsShell {
 public:
  ShellWithRecentFolder(platform::FileSystem& files, std::string recent)
      : WindowsShell(files, [](const std::string&) {}), m_recent(std::move(recent)) {}

  std::string SpecialFolderPath(int number) override {
    return number == platform::kRecentFolder ? m_recent : WindowsShell::SpecialFolderPath(number);
  }

 private:
  std::string m_recent;
};

/// The days that the documents were opened on, as many on each.
inline constexpr std::int64_t kDays = 10;

/// Writes shortcuts to as many documents into a folder.
void WriteShortcuts(const testing::TemporaryFolder& folder, const std::string& name, std::int64_t shortcuts);

/// The paths of the files in a folder, as the system takes them.
std::vector<std::wstring> FilesIn(const std::string& folder);

/// Copies files into a new folder, below that into one for each day, as whoever files them must at least.
void CopyAll(const std::vector<std::wstring>& files, const std::wstring& folder);

/// The program's rules over the real disk, shell, registry and message queue, in a folder of their own; a window it has
/// none. The clock stands.
class ProgramBench {
 public:
  explicit ProgramBench(std::int64_t shortcuts);

  void Load() { m_window.Form_Load(); }
  void Tick() { m_window.tmrMain.Fire(); }

  std::string Recent() const { return m_folder.Path() + "\\recent"; }
  std::string Daily() const { return m_folder.Path() + "\\Daily"; }
  std::string Elsewhere(const std::string& name) const { return m_folder.Path() + "\\" + name; }

 private:
  testing::TemporaryFolder m_folder;
  files::WindowsFileSystem m_files;
  testing::RegistryTree m_userRoot;
  ShellWithRecentFolder m_shell{m_files, Recent()};
  WindowsShellIcons m_icons{m_shell};
  WindowsRegistry m_registry{[](const std::string&) {}, m_userRoot.Path()};
  testing::TestWindowing m_windowing;
  widgets::WindowsWindowing m_messages;
  testing::TestHelp m_help;
  testing::TestClock m_clock;
  platform::DateConventions m_dates;
  platform::Desktop m_desktop{m_files, m_shell, m_icons, m_registry, m_windowing, m_help, m_clock, m_dates};
  Application m_application{m_desktop, m_folder.Path()};
  CRepository m_repository{m_application};
  FMain m_window{m_application, m_repository};
};

}  // namespace dayvane::bench
