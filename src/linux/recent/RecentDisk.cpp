#include "linux/recent/RecentDisk.h"

#include "base/Error.h"
#include "linux/LinuxFileSystem.h"
#include "linux/files/NativePath.h"
#include "linux/files/XdgFolders.h"

namespace dayvane::recent {

namespace {

constexpr std::size_t kLongestShortcut = 65536;     // bytes; a link holds a few paths
constexpr std::size_t kLongestState = 256U << 20U;  // bytes; it has a line for each document of years

/// A path that cannot be spelled stays empty and fails, as an Error, where it is used.
std::string Spelled(const std::string& nativePath) {
  return files::FromNative(nativePath).value_or("");
}

}  // namespace

RecentDisk::RecentDisk(const std::string& folder, const std::string& stateFile)
    : m_folder(Spelled(folder)), m_stateFile(Spelled(stateFile)), m_nativeFolder(folder) {}

void RecentDisk::CreateFolder() {
  xdg::MakeFolder(m_nativeFolder);
}

void RecentDisk::WriteShortcut(const std::string& name, std::string_view bytes, Moment written) {
  files::ReplaceWithTime(m_nativeFolder + "/" + name, bytes, written);
}

void RecentDisk::DeleteShortcut(const std::string& name) {
  files::LinuxFileSystem().Delete(PathOf(name));
}

void RecentDisk::WriteState(std::string_view text) {
  const auto native = files::ToNative(m_stateFile);
  if (native) xdg::MakeFolder(native->substr(0, native->rfind('/')));
  files::LinuxFileSystem().Replace(m_stateFile, text);
}

std::vector<FolderItem> RecentDisk::List() const {
  files::LinuxFileSystem disk;
  std::vector<FolderItem> items;
  for (const auto& entry : disk.List(m_folder)) {
    const auto status = disk.Status(m_folder + "\\" + entry.name);
    const auto native = files::ToNative(m_folder + "\\" + entry.name);
    if (!status || !native) continue;
    items.push_back({native->substr(native->rfind('/') + 1), status->kind == platform::EntryKind::File, status->size,
                     status->written.nanoseconds});
  }
  return items;
}

std::optional<Moment> RecentDisk::Written(const std::string& name) const {
  const auto status = files::LinuxFileSystem().Status(PathOf(name));
  return status && status->kind == platform::EntryKind::File ? std::optional(status->written.nanoseconds)
                                                             : std::nullopt;
}

std::optional<std::string> RecentDisk::ReadShortcut(const std::string& name) const {
  std::string bytes = files::LinuxFileSystem().Read(PathOf(name), kLongestShortcut + 1).bytes;
  return bytes.size() <= kLongestShortcut ? std::optional(std::move(bytes)) : std::nullopt;
}

std::optional<std::string> RecentDisk::ReadState() const {
  files::LinuxFileSystem disk;
  if (!disk.Status(m_stateFile)) return std::nullopt;
  return disk.Read(m_stateFile, kLongestState).bytes;
}

std::string RecentDisk::PathOf(const std::string& name) const {
  const auto spelled = files::NameFromNative(name);
  if (!spelled) throw Error(kBadFileName, "Name cannot be spelled", name);
  return m_folder + "\\" + *spelled;
}

}  // namespace dayvane::recent
