// SPDX-License-Identifier: MIT
#include "fs/Dir.h"

#include "app/ShellServices.h"
#include "base/Text.h"

namespace dayvane {

using platform::EntryKind;

std::vector<platform::DirectoryEntry> Dir(platform::FileSystem& files, const std::string& pattern, DirKinds kinds) {
  const PathParts parts = SplitPath(pattern);
  auto entries = files.List(parts.folder);
  std::erase_if(entries, [&](const platform::DirectoryEntry& entry) {
    const bool wanted =
        entry.kind == EntryKind::File || (entry.kind == EntryKind::Folder && kinds == DirKinds::FilesAndFolders);
    return !wanted || entry.hidden || !text::MatchesPattern(entry.name, parts.fileName);
  });
  return entries;
}

bool FolderExists(platform::FileSystem& files, const std::string& path) {
  const auto status = files.Status(path);
  return status && status->kind == EntryKind::Folder;
}

bool FileExists(platform::FileSystem& files, const std::string& path) {
  const auto status = files.Status(path);
  return status && status->kind != EntryKind::Folder;
}

}  // namespace dayvane
