// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace dayvane::recent {

/// A file system that is mounted.
struct MountedDrive {
  std::string folder;  ///< where, native
  std::string type;    ///< "ext4"
};

/// The drives that are mounted now, in the order of their mounting.
using MountTable = std::function<std::vector<MountedDrive>()>;
std::vector<MountedDrive> MountedDrives();

/// Tells whether there is a file. A drive that is not in this machine may be asleep or out of reach, and would stop the
/// program: nothing on it is touched.
class LocalDrives {
 public:
  explicit LocalDrives(std::vector<MountedDrive> drives) : m_drives(std::move(drives)) {}

  /// The native path without symbolic links, if it names nothing in a folder that is there, all of it on local drives.
  std::optional<std::string> MissingPlace(const std::string& path) const;

  /// Whether there is nothing at such a place, nor a drive that is not local. Costs one look at a status.
  bool IsMissing(const std::string& place) const;

  /// The native path without symbolic links, as far as it exists; nothing when it leads off the local drives.
  std::optional<std::string> Follow(const std::string& path) const;

 private:
  bool IsLocal(const std::string& path) const;

  std::vector<MountedDrive> m_drives;
};

}  // namespace dayvane::recent
