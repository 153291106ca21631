// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "controls/Signal.h"
#include "platform/FileSystem.h"

namespace dayvane {

/// What a walk reports and how deep it goes.
enum WalkFlags : long {
  kWalkFilesOfTree = 0,    ///< files, in the folder and everything below it
  kWalkNoSubFolders = 1,   ///< do not descend
  kWalkReportFolders = 2,  ///< sub-folders instead of files
};

/// Enumerates a folder, optionally with all below it, in pre-order: a folder's own items come before anything of its
/// sub-folders. Names that begin with "." are neither reported nor entered, and so are symbolic links: only the folder
/// that the walk starts from may be one, because its user put it there. What is reported has the link in its path.
class DirectoryWalker {
 public:
  static constexpr const char* ClassName = "DirectoryWalker";

  explicit DirectoryWalker(platform::FileSystem& files) : m_files(files) {}

  /// `sourceDirectory` ends with "\", to which names are joined as they are; `searchItem` is a pattern for the items
  /// ("*.lnk"); `flags` are WalkFlags. An error, the disk's or a listener's, ends the walk and goes to the caller.
  void WalkDirectoryTree(const std::string& sourceDirectory, const std::string& searchItem,
                         long flags = kWalkFilesOfTree);

  /// Folder of the item, with its trailing "\"; the item's bare name; set true to end the whole walk.
  controls::Signal<const std::string&, const std::string&, bool&> ItemFound;

 private:
  void Walk(const std::string& sourceDirectory, const std::string& listed, const std::string& searchItem, long flags);
  void ReportItems(const std::vector<platform::DirectoryEntry>& entries, const std::string& sourceDirectory,
                   const std::string& searchItem, bool folders);

  platform::FileSystem& m_files;
  bool m_cancel = false;  ///< one for the whole walk, so that a cancel at any depth ends every level
};

}  // namespace dayvane
