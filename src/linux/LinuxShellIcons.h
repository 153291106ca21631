#pragma once

#include "platform/ShellIcons.h"

namespace dayvane {

/// Icons of the desktop's icon theme, by the type of a file's name alone: nothing here looks at a document. A shortcut
/// has the icon of what it is named after, so "Report.odt.lnk" has a text document's.
class LinuxShellIcons : public platform::ShellIcons {
 public:
  std::uint64_t SpecialFolderIdentifier(int number) override;
  std::optional<platform::ShellFileInfo> FileInfo(const std::string& path, std::uint32_t attributes,
                                                  std::uint32_t flags) override;
  std::optional<platform::ShellFileInfo> FileInfo(std::uint64_t identifier, std::uint32_t attributes,
                                                  std::uint32_t flags) override;
};

}  // namespace dayvane
