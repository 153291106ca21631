// SPDX-License-Identifier: MIT
#include "linux/recent/LocalDrives.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <deque>
#include <gio/gunixmounts.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

#include "base/Text.h"

namespace dayvane::recent {

namespace {

struct FreeMounts {
  void operator()(GList* mounts) const {
    g_list_free_full(mounts, [](gpointer mount) { g_unix_mount_free(static_cast<GUnixMountEntry*>(mount)); });
  }
};

/// Of networks, of other machines' disks, and of programs ("fuse.sshfs", "fuse.portal"). A disk that a program reads
/// for the kernel ("fuseblk") is local.
bool IsLocalType(std::string_view type) {
  static constexpr std::string_view kRemote[] = {
      "nfs",    "nfs4",   "cifs",   "smb3",   "smbfs",     "ncpfs", "afs",      "afpfs", "9p",   "virtiofs",
      "autofs", "coda",   "davfs",  "davfs2", "ceph",      "gfs2",  "ocfs2",    "gpfs",  "fuse", "lustre",
      "beegfs", "vboxsf", "prl_fs", "vmhgfs", "glusterfs", "pvfs2", "orangefs", "acfs"};
  return !type.starts_with("fuse.") && std::find(std::begin(kRemote), std::end(kRemote), type) == std::end(kRemote);
}

bool LiesIn(std::string_view path, std::string_view folder) {
  if (folder == "/") return true;
  return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

void PutFirst(std::deque<std::string>& parts, std::string_view path) {
  const auto split = text::Split(path, '/');
  parts.insert(parts.begin(), split.begin(), split.end());
}

/// Where a symbolic link leads; nothing when there is none.
std::optional<std::string> ReadLink(const std::string& path) {
  char target[PATH_MAX];
  const ssize_t size = readlink(path.c_str(), target, sizeof target);
  if (size <= 0 || size == static_cast<ssize_t>(sizeof target)) return std::nullopt;
  return std::string(target, static_cast<std::size_t>(size));
}

std::string ParentOf(const std::string& path) {
  return path.substr(0, path.rfind('/'));
}

}  // namespace

std::vector<MountedDrive> MountedDrives() {
  const std::unique_ptr<GList, FreeMounts> mounts(g_unix_mounts_get(nullptr));
  std::vector<MountedDrive> drives;
  for (GList* item = mounts.get(); item != nullptr; item = item->next) {
    auto* mount = static_cast<GUnixMountEntry*>(item->data);
    drives.push_back({g_unix_mount_get_mount_path(mount), g_unix_mount_get_fs_type(mount)});
  }
  return drives;
}

bool LocalDrives::IsLocal(const std::string& path) const {
  const MountedDrive* drive = nullptr;
  // Of two on one folder the later one is seen.
  for (const MountedDrive& other : m_drives)
    if (LiesIn(path, other.folder) && (drive == nullptr || other.folder.size() >= drive->folder.size())) drive = &other;
  return drive != nullptr && IsLocalType(drive->type);
}

std::optional<std::string> LocalDrives::Follow(const std::string& path) const {
  constexpr int kMostLinks = 40;
  int links = 0;
  std::deque<std::string> parts;
  PutFirst(parts, path);
  std::string followed;
  while (!parts.empty()) {
    const std::string part = parts.front();
    parts.pop_front();
    if (part.empty() || part == ".") continue;
    if (part == "..") {
      followed = ParentOf(followed);
      continue;
    }
    const std::string next = followed + "/" + part;
    if (!IsLocal(next)) return std::nullopt;
    const auto target = ReadLink(next);
    if (target && ++links > kMostLinks) return std::nullopt;
    if (target) PutFirst(parts, *target);
    if (!target)
      followed = next;
    else if (target->starts_with('/'))
      followed.clear();
  }
  return followed;
}

std::optional<std::string> LocalDrives::MissingPlace(const std::string& path) const {
  const auto folder = Follow(ParentOf(path));
  struct stat status {};
  const bool isThere = folder && lstat((*folder + "/").c_str(), &status) == 0 && S_ISDIR(status.st_mode);
  const auto place = isThere ? Follow(path) : std::nullopt;
  return place && IsMissing(*place) ? place : std::nullopt;
}

bool LocalDrives::IsMissing(const std::string& place) const {
  struct stat status {};
  return IsLocal(place) && lstat(place.c_str(), &status) != 0 && errno == ENOENT;
}

}  // namespace dayvane::recent
