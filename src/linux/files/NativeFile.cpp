// SPDX-License-Identifier: MIT
#include "linux/files/NativeFile.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <limits>
#include <memory>

#include "base/Error.h"
#include "linux/files/SystemError.h"
#include "linux/files/UnfinishedFile.h"

namespace dayvane::files {

namespace {

using platform::DirectoryEntry;
using platform::EntryKind;
using platform::FileContents;
using platform::FileMoment;
using platform::FileStatus;

constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;

EntryKind KindOf(mode_t mode) {
  return S_ISREG(mode)   ? EntryKind::File
         : S_ISDIR(mode) ? EntryKind::Folder
         : S_ISLNK(mode) ? EntryKind::Link
                         : EntryKind::Other;
}

EntryKind KindOf(const std::string& folder, const dirent& entry) {
  switch (entry.d_type) {
    case DT_REG:
      return EntryKind::File;
    case DT_DIR:
      return EntryKind::Folder;
    case DT_LNK:
      return EntryKind::Link;
    case DT_UNKNOWN:
      break;
    default:
      return EntryKind::Other;
  }
  struct stat status {};
  return lstat((folder + "/" + entry.d_name).c_str(), &status) == 0 ? KindOf(status.st_mode) : EntryKind::Other;
}

/// Disks know years that 64 bits of nanoseconds do not reach (1677 to 2262): the nearer end stands for them.
std::int64_t Nanoseconds(const struct timespec& time) {
  constexpr std::int64_t kReach = std::numeric_limits<std::int64_t>::max() / kNanosecondsPerSecond;
  if (time.tv_sec >= kReach) return std::numeric_limits<std::int64_t>::max();
  if (time.tv_sec <= -kReach) return std::numeric_limits<std::int64_t>::min();
  return static_cast<std::int64_t>(time.tv_sec) * kNanosecondsPerSecond + time.tv_nsec;
}

struct timespec ToTimespec(std::int64_t nanoseconds) {
  std::int64_t seconds = nanoseconds / kNanosecondsPerSecond;
  std::int64_t rest = nanoseconds % kNanosecondsPerSecond;
  if (rest < 0) {
    --seconds;
    rest += kNanosecondsPerSecond;
  }
  return {static_cast<time_t>(seconds), static_cast<long>(rest)};
}

using OpenFolder = std::unique_ptr<DIR, int (*)(DIR*)>;

/// The folder itself, not one that a symbolic link of this name points at: what is listed may be deleted next. Null
/// where there is none.
OpenFolder OpenToList(const Place& place) {
  const int number = open(place.native.c_str(), O_RDONLY | O_CLOEXEC | O_DIRECTORY | O_NOFOLLOW);
  if (number < 0 && (errno == ENOENT || errno == ENOTDIR || errno == ELOOP)) return {nullptr, &closedir};
  if (number < 0) Fail(place.named);
  OpenFolder folder(fdopendir(number), &closedir);
  if (!folder) close(number);
  if (!folder) throw Error(kDeviceIoError, "Out of memory", place.named);
  return folder;
}

/// Whether the failure to look at a path says that nothing lies there that the program could use. A disk that does not
/// answer says no such thing: what is filed would be filed and counted again.
bool TellsOfNothing(int systemError) {
  constexpr int kAbsences[] = {ENOENT, ENOTDIR, ELOOP, ENAMETOOLONG, EACCES, EPERM, EINVAL};
  return std::ranges::find(kAbsences, systemError) != std::end(kAbsences);
}

}  // namespace

std::chrono::local_seconds LocalTime(std::int64_t secondsSince1970) {
  constexpr std::int64_t kYear1601 = -11644473600;
  constexpr std::int64_t kYear9999 = 253402214400;
  const std::int64_t clamped = std::clamp(secondsSince1970, kYear1601, kYear9999);
  const auto time = static_cast<time_t>(clamped);
  struct tm local {};
  localtime_r(&time, &local);
  return std::chrono::local_seconds{std::chrono::seconds{clamped + local.tm_gmtoff}};
}

FileMoment MomentOf(const struct stat& status) {
  return {Nanoseconds(status.st_mtim), LocalTime(status.st_mtim.tv_sec)};
}

std::optional<FileStatus> StatusOf(const Place& place) {
  struct stat status {};
  if (lstat(place.native.c_str(), &status) != 0) {
    if (!TellsOfNothing(errno)) Fail(place.named);
    return std::nullopt;
  }
  return FileStatus{KindOf(status.st_mode), static_cast<std::uint64_t>(status.st_size), MomentOf(status)};
}

std::vector<DirectoryEntry> ListFolder(const Place& folder) {
  std::vector<DirectoryEntry> entries;
  const OpenFolder open = OpenToList(folder);
  if (!open) return entries;
  for (;;) {
    errno = 0;
    const dirent* entry = readdir(open.get());
    if (entry == nullptr && errno != 0) Fail(folder.named);
    if (entry == nullptr) return entries;
    const std::string_view name = entry->d_name;
    if (name == "." || name == "..") continue;
    entries.push_back({std::string(name), KindOf(folder.native, *entry), name.starts_with('.')});
  }
}

FileDescriptor OpenFile(const Place& place, int flags, struct stat& status) {
  FileDescriptor file(open(place.native.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW, 0666));
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) Fail(place.named);
  if (!S_ISREG(status.st_mode)) throw Error(kPathFileAccess, "Not a file", place.named);
  return file;
}

FileContents ReadFile(const Place& place, std::size_t limit) {
  struct stat status {};
  const FileDescriptor file = OpenFile(place, O_RDONLY, status);
  return {ReadOpenFile(file.Number(), status, limit, place.named), MomentOf(status)};
}

std::string ReadOpenFile(int file, const struct stat& status, std::size_t limit, const std::string& named) {
  // One byte of room beyond the expected end tells the end of the file without a second read.
  const auto expected = static_cast<std::size_t>(status.st_size);
  std::size_t capacity = std::min(limit, expected + 1);
  std::size_t used = 0;
  std::string bytes;
  while (used < limit) {
    bytes.resize(capacity);
    const ssize_t count = read(file, bytes.data() + used, capacity - used);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) Fail(named);
    if (count == 0) break;
    used += static_cast<std::size_t>(count);
    // Before the expected end it was only a short read, as a disk in the network gives when a signal comes.
    if (used < capacity && used >= expected) break;
    if (used == capacity) capacity = std::min(limit, capacity * 2);
  }
  bytes.resize(used);
  return bytes;
}

void ReplaceFile(const Place& place, std::string_view bytes) {
  UnfinishedFile file(place.native, place.named);
  file.Write(bytes);
  file.FlushToDisk();
  file.Finish();
}

void ReplaceWithTime(const std::string& nativePath, std::string_view bytes, std::int64_t writtenNanoseconds) {
  UnfinishedFile file(nativePath, nativePath);
  file.Write(bytes);
  file.SetWritten(ToTimespec(writtenNanoseconds));
  file.Finish();
}

void DeleteFile(const Place& place) {
  if (unlink(place.native.c_str()) != 0) Fail(place.named);
}

}  // namespace dayvane::files
