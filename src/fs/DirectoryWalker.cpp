#include "fs/DirectoryWalker.h"

#include "fs/Dir.h"

namespace dayvane {

using platform::EntryKind;

void DirectoryWalker::WalkDirectoryTree(const std::string& sourceDirectory, const std::string& searchItem, long flags) {
  m_cancel = false;
  Walk(sourceDirectory, searchItem, flags);
}

void DirectoryWalker::Walk(const std::string& sourceDirectory, const std::string& searchItem, long flags) {
  ReportItems(sourceDirectory, searchItem, (flags & kWalkReportFolders) != 0);
  if ((flags & kWalkNoSubFolders) != 0 || m_cancel) return;
  for (const std::string& name : SubFolders(sourceDirectory)) {
    Walk(sourceDirectory + name + "\\", searchItem, flags);
    if (m_cancel) return;
  }
}

void DirectoryWalker::ReportItems(const std::string& sourceDirectory, const std::string& searchItem, bool folders) {
  const auto kinds = folders ? DirKinds::FilesAndFolders : DirKinds::Files;
  for (const auto& entry : Dir(m_files, sourceDirectory + searchItem, kinds)) {
    if (entry.name.starts_with('.') || (folders && entry.kind != EntryKind::Folder)) continue;
    ItemFound.Raise(sourceDirectory, entry.name, m_cancel);
    if (m_cancel) return;
  }
}

std::vector<std::string> DirectoryWalker::SubFolders(const std::string& sourceDirectory) const {
  std::vector<std::string> names;
  for (const auto& entry : Dir(m_files, sourceDirectory + "*.*", DirKinds::FilesAndFolders))
    if (entry.kind == EntryKind::Folder && !entry.name.starts_with('.')) names.push_back(entry.name);
  return names;
}

}  // namespace dayvane
