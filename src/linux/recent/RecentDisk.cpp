// SPDX-License-Identifier: MIT
#include "linux/recent/RecentDisk.h"

#include "linux/files/NativeFile.h"
#include "linux/files/NativePath.h"
#include "linux/files/XdgFolders.h"

namespace dayvane::recent {

namespace {

constexpr std::size_t kLongestShortcut = 65536;     // bytes; a link holds a few paths
constexpr std::size_t kLongestState = 256U << 20U;  // bytes; one line for each document of many years

}  // namespace

void RecentDisk::CreateFolder() {
  xdg::MakeFolder(m_folder);
}

void RecentDisk::WriteShortcut(const std::string& name, std::string_view bytes, Moment written) {
  files::ReplaceWithTime(PathOf(name), bytes, written);
}

void RecentDisk::DeleteShortcut(const std::string& name) {
  files::DeleteFile(PathOf(name));
}

void RecentDisk::WriteState(std::string_view text) {
  xdg::MakeFolder(m_stateFile.substr(0, m_stateFile.rfind('/')));
  files::ReplaceFile(m_stateFile, text);
}

std::vector<FolderItem> RecentDisk::List() const {
  std::vector<FolderItem> items;
  for (const auto& entry : files::ListFolder(m_folder)) {
    // The program does not see what it cannot spell.
    const auto status = files::NameFromNative(entry.name) ? files::StatusOf(PathOf(entry.name)) : std::nullopt;
    if (!status) continue;
    const bool isFile = status->kind == platform::EntryKind::File;
    items.push_back({entry.name, isFile, status->size, status->written.nanoseconds});
  }
  return items;
}

std::optional<Moment> RecentDisk::Written(const std::string& name) const {
  const auto status = files::StatusOf(PathOf(name));
  return status && status->kind == platform::EntryKind::File ? std::optional(status->written.nanoseconds)
                                                             : std::nullopt;
}

std::optional<std::string> RecentDisk::ReadShortcut(const std::string& name) const {
  std::string bytes = files::ReadFile(PathOf(name), kLongestShortcut + 1).bytes;
  return bytes.size() <= kLongestShortcut ? std::optional(std::move(bytes)) : std::nullopt;
}

std::optional<std::string> RecentDisk::ReadState() const {
  if (!files::StatusOf(m_stateFile)) return std::nullopt;
  return files::ReadFile(m_stateFile, kLongestState).bytes;
}

}  // namespace dayvane::recent
