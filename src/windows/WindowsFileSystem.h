// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/FileSystem.h"
#include "windows/files/LocalTime.h"

namespace dayvane::files {

/// The disk of Windows. Files are replaced through an UnfinishedFile, so that a kill leaves at most that one file,
/// which is told as hidden, which the next write in the folder reuses and removing the folder clears away. What another
/// program holds for a moment is tried again; that a file must not be written does not keep it from being replaced or
/// deleted.
class WindowsFileSystem : public platform::FileSystem {
 public:
  /// The local time of a moment, in seconds since 1970.
  using LocalTimeOf = std::function<std::chrono::local_seconds(std::int64_t)>;

  WindowsFileSystem() : WindowsFileSystem([](std::int64_t moment) { return LocalTime(moment); }) {}

  /// With the clock of another zone.
  explicit WindowsFileSystem(LocalTimeOf localTime) : m_localTime(std::move(localTime)) {}

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

 private:
  platform::FileMoment MomentOf(const FILETIME& written) const;

  LocalTimeOf m_localTime;
};

}  // namespace dayvane::files
