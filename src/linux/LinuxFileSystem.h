// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "linux/files/NativeFile.h"
#include "platform/FileSystem.h"

namespace dayvane::files {

/// The disk of a POSIX system. Files are replaced through an UnfinishedFile, so that a kill leaves at most that one
/// hidden file, which the next write in the folder reuses and removing the folder clears away.
class LinuxFileSystem : public platform::FileSystem {
 public:
  std::optional<platform::FileStatus> Status(const std::string& path) override;
  std::string Resolve(const std::string& path) override;
  std::vector<platform::DirectoryEntry> List(const std::string& folder) override;
  platform::FileContents Read(const std::string& path, std::size_t limit) override;
  void Replace(const std::string& path, std::string_view bytes) override;
  void ReplaceUnflushed(const std::string& path, std::string_view bytes) override;
  void Copy(const std::string& source, const std::string& destination) override;
  void Append(const std::string& path, std::string_view text) override;
  void CreateFolder(const std::string& path) override;
  void Rename(const std::string& path, const std::string& newPath) override;
  void Delete(const std::string& path) override;
  void RemoveFolder(const std::string& path) override;
};

}  // namespace dayvane::files
