// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace dayvane::platform {

/// A picture as the desktop knows it: the names of icons to try in order, or a number of the program's own resources
/// when there are none.
struct Picture {
  std::vector<std::string> iconNames;
  int resource = 0;

  friend bool operator==(const Picture&, const Picture&) = default;
};

/// What the shell knows about one item, as far as the flags asked for it.
struct ShellFileInfo {
  std::optional<Picture> icon;
  std::string displayName;
  std::string typeName;
};

/// What is asked of an item: the flags of the classic SHGetFileInfo call.
enum FileInfoFlag : std::uint32_t {
  kInfoSmallIcon = 0x1,
  kInfoShellIconSize = 0x4,
  kInfoByIdentifier = 0x8,
  kInfoUseAttributes = 0x10,  ///< the file need not be there
  kInfoIcon = 0x100,
  kInfoDisplayName = 0x200,
  kInfoTypeName = 0x400,
};

/// Attributes of that call (FILE_ATTRIBUTE_…).
enum FileAttribute : std::uint32_t { kAttributeDirectory = 0x10, kAttributeArchive = 0x20 };

/// The shell's icons.
class ShellIcons {
 public:
  virtual ~ShellIcons() = default;

  /// Identifier of the special folder with this number. Fails when the desktop has no such folder.
  virtual std::uint64_t SpecialFolderIdentifier(int number) = 0;

  /// Nothing when the shell does not know the item. With kInfoUseAttributes the file need not be there,
  /// so one that is gone has an icon too. What a shortcut leads to is never looked at.
  virtual std::optional<ShellFileInfo> FileInfo(const std::string& path, std::uint32_t attributes,
                                                std::uint32_t flags) = 0;
  virtual std::optional<ShellFileInfo> FileInfo(std::uint64_t identifier, std::uint32_t attributes,
                                                std::uint32_t flags) = 0;
};

}  // namespace dayvane::platform
