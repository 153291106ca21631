#pragma once

#include <optional>
#include <string>
#include <string_view>
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

/// The two places on the disk that the recent documents' bridge changes: the Recent folder and its state file.
/// Failures are Errors. The changes are virtual so that a disk can be full, or a session end, between any two of them.
class RecentDisk {
 public:
  /// Native paths.
  RecentDisk(const std::string& folder, const std::string& stateFile);
  RecentDisk(const RecentDisk&) = delete;
  RecentDisk& operator=(const RecentDisk&) = delete;
  virtual ~RecentDisk() = default;

  /// Makes the Recent folder with the folders above it; none may exist already.
  virtual void CreateFolder();

  /// Puts a shortcut in place as a whole, with its last-written time.
  virtual void WriteShortcut(const std::string& name, std::string_view bytes, Moment written);
  virtual void DeleteShortcut(const std::string& name);
  virtual void WriteState(std::string_view text);

  /// Everything in the folder; nothing when there is no folder.
  std::vector<FolderItem> List() const;

  /// When a shortcut was last written; nothing when there is none of that name.
  std::optional<Moment> Written(const std::string& name) const;

  /// The bytes of a file of the folder, or nothing when it is larger than a shortcut of ours ever is.
  std::optional<std::string> ReadShortcut(const std::string& name) const;

  /// Nothing when there is no state file.
  std::optional<std::string> ReadState() const;

 private:
  std::string PathOf(const std::string& name) const;

  // Paths as the program spells them, and the folder's native one.
  std::string m_folder;
  std::string m_stateFile;
  std::string m_nativeFolder;
};

}  // namespace dayvane::recent
