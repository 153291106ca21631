// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "linux/recent/Moment.h"

namespace dayvane::recent {

/// Something in the Recent folder.
struct FolderItem {
  std::string name;  ///< native
  bool isFile = false;
  std::uint64_t size = 0;  ///< bytes
  Moment written = 0;
};

/// The two places on the disk that are changed for the recent documents: the Recent folder and the state file.
/// Failures are Errors. Changes are virtual so that a test can fill the disk, or end the session, between any two.
class RecentDisk {
 public:
  /// Native paths.
  RecentDisk(std::string folder, std::string stateFile)
      : m_folder(std::move(folder)), m_stateFile(std::move(stateFile)) {}
  RecentDisk(const RecentDisk&) = delete;
  RecentDisk& operator=(const RecentDisk&) = delete;
  virtual ~RecentDisk() = default;

  /// Makes the Recent folder and the folders above it, as far as they are missing.
  virtual void CreateFolder();

  /// Puts a shortcut in place as a whole, with its last-written time.
  virtual void WriteShortcut(const std::string& name, std::string_view bytes, Moment written);
  virtual void DeleteShortcut(const std::string& name);
  virtual void WriteState(std::string_view text);

  /// Everything in the folder; empty when there is no folder.
  std::vector<FolderItem> List() const;

  /// When a shortcut was last written; nothing when there is no shortcut of that name.
  std::optional<Moment> Written(const std::string& name) const;

  /// The bytes of a file in the folder; nothing when it is larger than any shortcut of ours.
  std::optional<std::string> ReadShortcut(const std::string& name) const;

  /// Nothing when there is no state file.
  std::optional<std::string> ReadState() const;

 private:
  std::string PathOf(const std::string& name) const { return m_folder + "/" + name; }

  std::string m_folder;
  std::string m_stateFile;
};

}  // namespace dayvane::recent
