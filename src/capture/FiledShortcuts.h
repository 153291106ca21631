// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_map>

#include "platform/FileSystem.h"

namespace dayvane {

/// Remembers where the shortcuts of the Recent folder are filed, so that a poll need not read again what it has filed:
/// as long as the shortcut and its copy have the moment that they had then, there is nothing to do for it.
class FiledShortcuts {
 public:
  explicit FiledShortcuts(platform::FileSystem& files) : m_files(files) {}

  bool IsUnchanged(const std::string& shortcut) const;

  /// `copy` is where the shortcut is filed, with the moment `written`.
  void Remember(const std::string& shortcut, const std::string& copy, const platform::FileMoment& written);

 private:
  struct Filed {
    std::string copy;
    platform::FileMoment written;
  };

  bool HasMoment(const std::string& path, const platform::FileMoment& written) const;

  platform::FileSystem& m_files;
  std::unordered_map<std::string, Filed> m_filed;  ///< by the shortcut's path
};

}  // namespace dayvane
