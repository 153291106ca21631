// SPDX-License-Identifier: MIT
#pragma once

#include <map>

#include "platform/Shell.h"
#include "platform/ShellIcons.h"
#include "windows/launch/ComObject.h"

namespace dayvane {

/// Icons as the system gives them by names, see launch/SystemIcon.h. No file is looked at: its disk may be asleep, or
/// its computer not answer. A shortcut has the icon of what it stands for, mostly by its own name: "Report.odt.lnk" has
/// a text document's. Only where that names no type is the shortcut read, and what it leads to has its icon by its name
/// too.
class WindowsShellIcons : public platform::ShellIcons {
 public:
  /// `shell` reads the shortcuts.
  explicit WindowsShellIcons(platform::Shell& shell) : m_shell(shell) {}

  std::uint64_t SpecialFolderIdentifier(int number) override;
  std::optional<platform::ShellFileInfo> FileInfo(const std::string& path, std::uint32_t attributes,
                                                  std::uint32_t flags) override;

  /// Knows the identifiers that it gave, and no other.
  std::optional<platform::ShellFileInfo> FileInfo(std::uint64_t identifier, std::uint32_t attributes,
                                                  std::uint32_t flags) override;

 private:
  std::optional<platform::ShellFileInfo> InfoOfShortcut(const std::string& path, std::string name,
                                                        std::uint32_t attributes, std::uint32_t flags);

  platform::Shell& m_shell;
  std::map<int, launch::TaskMemory<ITEMIDLIST>> m_folders;  ///< by number; an identifier is the address of one
};

}  // namespace dayvane
