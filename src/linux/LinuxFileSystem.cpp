#include "linux/LinuxFileSystem.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <limits>
#include <memory>
#include <sys/stat.h>

#include "base/Error.h"
#include "linux/files/FileDescriptor.h"
#include "linux/files/NativePath.h"
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

std::string Native(const std::string& path) {
  auto native = ToNative(path);
  if (!native) throw Error(kPathNotFound, "Path not found", path);
  return *native;
}

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

/// Copies what the source holds from `position` to `end`.
void CopyRange(int source, int target, off_t position, off_t end, const std::string& path) {
  if (lseek(target, position, SEEK_SET) < 0 || lseek(source, position, SEEK_SET) < 0) Fail(path);
  char buffer[65536];
  while (position < end) {
    const auto wanted = static_cast<std::size_t>(std::min<off_t>(end - position, sizeof buffer));
    const ssize_t count = read(source, buffer, wanted);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) Fail(path);
    if (count == 0) return;
    WriteAll(target, {buffer, static_cast<std::size_t>(count)}, path);
    position += count;
  }
}

/// Copies the bytes, leaving holes where the source has them: a damaged shortcut may claim a gigabyte of nothing.
void CopyContents(int source, int target, off_t size, const std::string& path) {
  constexpr off_t kWorthLooking = 1 << 20;
  if (size < kWorthLooking) return CopyRange(source, target, 0, size, path);
  off_t position = 0;
  while (position < size) {
    const off_t data = lseek(source, position, SEEK_DATA);
    if (data < 0 && errno == ENXIO) break;
    if (data < 0) return CopyRange(source, target, position, size, path);
    const off_t hole = lseek(source, data, SEEK_HOLE);
    const off_t end = hole < 0 ? size : hole;
    CopyRange(source, target, data, end, path);
    position = end;
  }
  if (ftruncate(target, size) != 0) Fail(path);
}

/// Opens a file and nothing else. Not blocking: a named pipe in place of a file must not stop the program.
FileDescriptor OpenFile(const std::string& path, int flags, struct stat& status) {
  FileDescriptor file(open(Native(path).c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW, 0666));
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) Fail(path);
  if (!S_ISREG(status.st_mode)) throw Error(kPathFileAccess, "Not a file", path);
  return file;
}

using OpenFolder = std::unique_ptr<DIR, int (*)(DIR*)>;

/// The folder itself, not one that a symbolic link of this name points at: whoever lists a folder may go on to delete
/// what it holds. Null where there is none.
OpenFolder OpenToList(const std::string& native, const std::string& path) {
  const int number = open(native.c_str(), O_RDONLY | O_CLOEXEC | O_DIRECTORY | O_NOFOLLOW);
  if (number < 0 && (errno == ENOENT || errno == ENOTDIR || errno == ELOOP)) return {nullptr, &closedir};
  if (number < 0) Fail(path);
  OpenFolder folder(fdopendir(number), &closedir);
  if (!folder) close(number);
  if (!folder) throw Error(kDeviceIoError, "Out of memory", path);
  return folder;
}

/// Whether the failure to look at a path says that nothing lies there that the program could use. A disk that does not
/// answer says no such thing: what is filed would be filed and counted again.
bool TellsOfNothing(int systemError) {
  constexpr int kAbsences[] = {ENOENT, ENOTDIR, ELOOP, ENAMETOOLONG, EACCES, EPERM, EINVAL};
  return std::ranges::find(kAbsences, systemError) != std::end(kAbsences);
}

/// Gives a file the present time if it holds exactly these bytes and has no other name, by which it may be a copy that
/// somebody keeps. Returns whether it does.
bool TouchIfSame(const std::string& native, std::string_view bytes) {
  const FileDescriptor file(open(native.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW));
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  if (status.st_nlink != 1) return false;
  if (static_cast<std::size_t>(status.st_size) != bytes.size()) return false;
  std::string found(bytes.size(), '\0');
  const ssize_t count = read(file.Number(), found.data(), found.size());
  const bool same = count == static_cast<ssize_t>(bytes.size()) && found == bytes;
  return same && futimens(file.Number(), nullptr) == 0;
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

void ReplaceWithTime(const std::string& nativePath, std::string_view bytes, std::int64_t writtenNanoseconds) {
  UnfinishedFile file(nativePath, nativePath);
  file.Write(bytes);
  file.SetWritten(ToTimespec(writtenNanoseconds));
  file.Finish();
}

std::optional<FileStatus> LinuxFileSystem::Status(const std::string& path) {
  const auto native = ToNative(path);
  struct stat status {};
  if (!native) return std::nullopt;
  if (lstat(native->c_str(), &status) != 0) {
    if (!TellsOfNothing(errno)) Fail(path);
    return std::nullopt;
  }
  return FileStatus{KindOf(status.st_mode), static_cast<std::uint64_t>(status.st_size), MomentOf(status)};
}

std::string LinuxFileSystem::Resolve(const std::string& path) {
  namespace fs = std::filesystem;
  constexpr int kMostLinks = 40;  // as many as the system itself follows
  fs::path native = Native(path);
  std::error_code error;
  int links = 0;
  for (fs::path target = fs::read_symlink(native, error); !error; target = fs::read_symlink(native, error)) {
    if (++links > kMostLinks) throw Error(kPathFileAccess, "Too many levels of symbolic links", path);
    const fs::path next = native.parent_path() / target;
    native = next.has_filename() ? next : next.parent_path();
  }
  if (links == 0) return path;
  // Only now: a ".." of a link counts from the folder that the link's own folder really is.
  const fs::path folder = fs::weakly_canonical(native.parent_path(), error);
  const auto resolved = FromNative(((error ? native.parent_path() : folder) / native.filename()).string());
  if (!resolved) throw Error(kBadFileName, "A symbolic link leads to a name that cannot be used", path);
  return *resolved;
}

namespace {

std::vector<DirectoryEntry> ListAsStored(const std::string& folder) {
  std::vector<DirectoryEntry> entries;
  const auto native = ToNative(folder);
  if (!native) return entries;
  const OpenFolder open = OpenToList(*native, folder);
  if (!open) return entries;
  for (;;) {
    errno = 0;
    const dirent* entry = readdir(open.get());
    if (entry == nullptr && errno != 0) Fail(folder);
    if (entry == nullptr) return entries;
    const std::string_view name = entry->d_name;
    if (name == "." || name == "..") continue;
    // A name that the program cannot spell is not the program's: it writes none such.
    if (auto spelled = NameFromNative(name))
      entries.push_back({std::move(*spelled), KindOf(*native, *entry), name.starts_with('.')});
  }
}

}  // namespace

std::vector<DirectoryEntry> LinuxFileSystem::List(const std::string& folder) {
  std::vector<DirectoryEntry> entries = ListAsStored(folder);
  // As the disks of other systems list them: users see years in the order of the listing.
  std::ranges::sort(entries, {}, &DirectoryEntry::name);
  return entries;
}

FileContents LinuxFileSystem::Read(const std::string& path, std::size_t limit) {
  struct stat status {};
  const FileDescriptor file = OpenFile(path, O_RDONLY, status);
  FileContents contents{{}, MomentOf(status)};
  // One byte of room beyond the expected end tells the end of the file without a second read.
  const auto expected = static_cast<std::size_t>(status.st_size);
  std::size_t capacity = std::min(limit, expected + 1);
  std::size_t used = 0;
  while (used < limit) {
    contents.bytes.resize(capacity);
    const ssize_t count = read(file.Number(), contents.bytes.data() + used, capacity - used);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) Fail(path);
    if (count == 0) break;
    used += static_cast<std::size_t>(count);
    // Before the expected end it was only a short read, as a disk in the network gives when a signal comes.
    if (used < capacity && used >= expected) break;
    if (used == capacity) capacity = std::min(limit, capacity * 2);
  }
  contents.bytes.resize(used);
  return contents;
}

void LinuxFileSystem::Replace(const std::string& path, std::string_view bytes) {
  UnfinishedFile file(Native(path), path);
  file.Write(bytes);
  file.FlushToDisk();
  file.Finish();
}

void LinuxFileSystem::ReplaceUnflushed(const std::string& path, std::string_view bytes) {
  if (TouchIfSame(Native(path), bytes)) return;
  UnfinishedFile file(Native(path), path);
  file.Write(bytes);
  file.Finish();
}

void LinuxFileSystem::Copy(const std::string& source, const std::string& destination) {
  struct stat status {};
  const FileDescriptor from = OpenFile(source, O_RDONLY, status);
  UnfinishedFile to(Native(destination), destination);
  CopyContents(from.Number(), to.Number(), status.st_size, destination);
  to.SetWritten(status.st_mtim);
  to.Finish();
}

void LinuxFileSystem::Append(const std::string& path, std::string_view text) {
  struct stat status {};
  const FileDescriptor file = OpenFile(path, O_WRONLY | O_CREAT | O_APPEND, status);
  WriteAll(file.Number(), text, path);
}

void LinuxFileSystem::CreateFolder(const std::string& path) {
  if (mkdir(Native(path).c_str(), 0777) != 0) Fail(path);
}

void LinuxFileSystem::Rename(const std::string& path, const std::string& newPath) {
  const std::string from = Native(path);
  const std::string to = Native(newPath);
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return;
  if (errno == EINVAL) {
    // Some file systems cannot be asked not to replace.
    struct stat status {};
    if (lstat(to.c_str(), &status) == 0)
      errno = EEXIST;
    else if (rename(from.c_str(), to.c_str()) == 0)
      return;
  }
  Fail(errno == EEXIST ? newPath : path);
}

void LinuxFileSystem::Delete(const std::string& path) {
  if (unlink(Native(path).c_str()) != 0) Fail(path);
}

void LinuxFileSystem::RemoveFolder(const std::string& path) {
  const std::string native = Native(path);
  if (rmdir(native.c_str()) == 0) return;
  if (errno != ENOTEMPTY && errno != EEXIST) Fail(path);
  // What a kill may have left is the program's own. Whether it was there does not matter: the second attempt tells.
  unlink((native + "/" + kUnfinishedName).c_str());
  if (rmdir(native.c_str()) != 0) Fail(path);
}

}  // namespace dayvane::files
