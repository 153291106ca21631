// SPDX-License-Identifier: MIT
#pragma once

#include "linux/launch/Applications.h"
#include "platform/Shell.h"
#include "platform/ShellIcons.h"

namespace dayvane {

/// Icons of the desktop's icon theme. A shortcut has the icon of what it stands for, mostly by its name alone:
/// "Report.odt.lnk" has a text document's. Only where the name may be a program's or a folder's is the shortcut read;
/// what it leads to never is, because its disk may be asleep.
class LinuxShellIcons : public platform::ShellIcons {
 public:
  /// `shell` reads the shortcuts.
  explicit LinuxShellIcons(platform::Shell& shell) : m_shell(shell) {}

  std::uint64_t SpecialFolderIdentifier(int number) override;
  std::optional<platform::ShellFileInfo> FileInfo(const std::string& path, std::uint32_t attributes,
                                                  std::uint32_t flags) override;
  std::optional<platform::ShellFileInfo> FileInfo(std::uint64_t identifier, std::uint32_t attributes,
                                                  std::uint32_t flags) override;

 private:
  /// Nothing for a shortcut that leads to neither a program nor a folder.
  std::optional<platform::ShellFileInfo> InfoOfShortcut(const std::string& path);
  platform::ShellFileInfo InfoOfProgram(const std::string& program);

  platform::Shell& m_shell;
  applications::ProgramIndex m_programs;
};

}  // namespace dayvane
