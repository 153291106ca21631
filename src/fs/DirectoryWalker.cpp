// SPDX-License-Identifier: MIT
#include "fs/DirectoryWalker.h"

#include "app/ShellServices.h"
#include "base/Text.h"
#include "fs/Dir.h"

namespace dayvane {

using platform::EntryKind;

void DirectoryWalker::WalkDirectoryTree(const std::string& sourceDirectory, const std::string& searchItem, long flags) {
  m_cancel = false;
  std::string listed = sourceDirectory;
  if (listed.ends_with('\\')) listed = m_files.Resolve(listed.substr(0, listed.size() - 1)) + "\\";
  Walk(sourceDirectory, listed, searchItem, flags);
}

void DirectoryWalker::Walk(const std::string& sourceDirectory, const std::string& listed, const std::string& searchItem,
                           long flags) {
  // One listing serves the items and the sub-folders, and is complete before anything of it is reported or entered.
  const auto entries = Dir(m_files, listed + "*.*", DirKinds::FilesAndFolders);
  ReportItems(entries, sourceDirectory, searchItem, (flags & kWalkReportFolders) != 0);
  if ((flags & kWalkNoSubFolders) != 0 || m_cancel) return;
  for (const auto& entry : entries) {
    if (entry.kind != EntryKind::Folder || entry.name.starts_with('.')) continue;
    Walk(sourceDirectory + entry.name + "\\", listed + entry.name + "\\", searchItem, flags);
    if (m_cancel) return;
  }
}

void DirectoryWalker::ReportItems(const std::vector<platform::DirectoryEntry>& entries,
                                  const std::string& sourceDirectory, const std::string& searchItem, bool folders) {
  const EntryKind wanted = folders ? EntryKind::Folder : EntryKind::File;
  const std::string pattern = SplitPath(sourceDirectory + searchItem).fileName;
  for (const auto& entry : entries) {
    if (entry.kind != wanted || entry.name.starts_with('.') || !text::MatchesPattern(entry.name, pattern)) continue;
    ItemFound.Raise(sourceDirectory, entry.name, m_cancel);
    if (m_cancel) return;
  }
}

}  // namespace dayvane
