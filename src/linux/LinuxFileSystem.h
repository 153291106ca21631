#pragma once

#include <string>
#include <sys/stat.h>
#include <vector>

#include "platform/FileSystem.h"

namespace dayvane::files {

/// The disk of a POSIX system. Files are replaced through a neighbour named kUnfinishedName, so that a kill leaves at
/// most that one hidden file, which the next write in the folder reuses and removing the folder clears away.
class LinuxFileSystem : public platform::FileSystem {
 public:
  static constexpr const char* kUnfinishedName = ".dayvane-unfinished";

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

/// The moment a file was last written, with the user's local time beside it.
platform::FileMoment MomentOf(const struct stat& status);

/// The local time of a moment. Times outside the years 1601 to 9999 are moved to the nearer end.
std::chrono::local_seconds LocalTime(std::int64_t secondsSince1970);

/// Puts a whole file in place with the given last-written time (nanoseconds since 1970, UTC).
void ReplaceWithTime(const std::string& nativePath, std::string_view bytes, std::int64_t writtenNanoseconds);

}  // namespace dayvane::files
