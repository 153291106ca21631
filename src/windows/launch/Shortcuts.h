// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_map>

#include "links/ShellLinkReader.h"

namespace dayvane::launch {

/// Shortcut files: read by the program's own reader, which asks the shell for the target where it finds no path that a
/// file can have; written by the shell's own where what that writes reads back as it was given.
class Shortcuts {
 public:
  Shortcuts(platform::FileSystem& files, ReportEvent reportEvent);

  /// See links::ShellLinkReader. The target is never touched: it may lie on a computer that does not answer.
  platform::ReadLink Read(const std::string& path);

  /// Replaces the file whole. Not flushed: a first capture writes thousands of links.
  void Write(const std::string& path, const platform::ShellLink& link);

 private:
  /// What the shell made of a version of a file. A poll reads all of them again, and most of those that the program's
  /// reader finds no path in, such as one to a page of the settings, have none.
  struct Asked {
    platform::ReadLink version;
    std::string target;
  };

  std::string AskShell(const std::string& path, const platform::ReadLink& version);

  platform::FileSystem& m_files;
  links::ShellLinkReader m_links;
  std::unordered_map<std::string, Asked> m_asked;  ///< by path
};

}  // namespace dayvane::launch
