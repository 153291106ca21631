#include "linux/files/PosixFileSystem.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

#include "base/Error.h"
#include "linux/files/FileDescriptor.h"
#include "linux/files/NativePath.h"
#include "linux/files/SystemError.h"

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

std::int64_t Nanoseconds(const struct timespec& time) {
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

void WriteAll(int file, std::string_view bytes, const std::string& path) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) Fail(path);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

/// A new file beside its destination, which it takes the place of when it is whole; gone again when it never is.
class UnfinishedFile {
 public:
  explicit UnfinishedFile(const std::string& destination)
      : m_destination(destination),
        m_path(destination.substr(0, destination.rfind('/') + 1) + PosixFileSystem::kUnfinishedName),
        m_file(Create()) {}
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;
  ~UnfinishedFile() {
    if (!m_done) unlink(m_path.c_str());
  }

  int Number() const { return m_file.Number(); }

  void SetWritten(const struct timespec& written) const {
    const struct timespec times[2] = {{0, UTIME_OMIT}, written};
    if (futimens(Number(), times) != 0) Fail(m_destination);
  }

  void Finish() {
    if (rename(m_path.c_str(), m_destination.c_str()) != 0) Fail(m_destination);
    m_done = true;
  }

 private:
  FileDescriptor Create() const {
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW;
    FileDescriptor file(open(m_path.c_str(), kFlags, 0666));
    if (!file.IsOpen() && errno == EEXIST && unlink(m_path.c_str()) == 0)
      file = FileDescriptor(open(m_path.c_str(), kFlags, 0666));
    if (!file.IsOpen()) Fail(m_destination);
    return file;
  }

  std::string m_destination;
  std::string m_path;
  FileDescriptor m_file;
  bool m_done = false;
};

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

FileDescriptor OpenToRead(const std::string& path, struct stat& status) {
  // Not blocking: a named pipe in place of a file must not stop the program.
  FileDescriptor file(open(Native(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW));
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) Fail(path);
  if (!S_ISREG(status.st_mode)) throw Error(kPathFileAccess, "Not a file", path);
  return file;
}

void FlushToDisk(int file, const std::string& path) {
  if (fdatasync(file) != 0) Fail(path);
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
  UnfinishedFile file(nativePath);
  WriteAll(file.Number(), bytes, nativePath);
  file.SetWritten(ToTimespec(writtenNanoseconds));
  file.Finish();
}

std::optional<FileStatus> PosixFileSystem::Status(const std::string& path) {
  const auto native = ToNative(path);
  struct stat status {};
  if (!native || lstat(native->c_str(), &status) != 0) return std::nullopt;
  return FileStatus{KindOf(status.st_mode), static_cast<std::uint64_t>(status.st_size), MomentOf(status)};
}

std::vector<DirectoryEntry> PosixFileSystem::List(const std::string& folder) {
  std::vector<DirectoryEntry> entries;
  const auto native = ToNative(folder);
  if (!native) return entries;
  const std::unique_ptr<DIR, int (*)(DIR*)> open(opendir(native->c_str()), &closedir);
  if (!open && (errno == ENOENT || errno == ENOTDIR)) return entries;
  if (!open) Fail(folder);
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

FileContents PosixFileSystem::Read(const std::string& path, std::size_t limit) {
  struct stat status {};
  const FileDescriptor file = OpenToRead(path, status);
  FileContents contents{{}, MomentOf(status)};
  // One byte of room beyond the expected end tells the end of the file without a second read.
  std::size_t capacity = std::min(limit, static_cast<std::size_t>(status.st_size) + 1);
  std::size_t used = 0;
  while (used < limit) {
    contents.bytes.resize(capacity);
    const ssize_t count = read(file.Number(), contents.bytes.data() + used, capacity - used);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) Fail(path);
    if (count == 0) break;
    used += static_cast<std::size_t>(count);
    if (used < capacity) break;
    capacity = std::min(limit, capacity * 2);
  }
  contents.bytes.resize(used);
  return contents;
}

void PosixFileSystem::Replace(const std::string& path, std::string_view bytes) {
  UnfinishedFile file(Native(path));
  WriteAll(file.Number(), bytes, path);
  FlushToDisk(file.Number(), path);
  file.Finish();
}

void PosixFileSystem::Copy(const std::string& source, const std::string& destination) {
  struct stat status {};
  const FileDescriptor from = OpenToRead(source, status);
  UnfinishedFile to(Native(destination));
  CopyContents(from.Number(), to.Number(), status.st_size, destination);
  to.SetWritten(status.st_mtim);
  to.Finish();
}

void PosixFileSystem::Append(const std::string& path, std::string_view text) {
  const FileDescriptor file(open(Native(path).c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK, 0666));
  if (!file.IsOpen()) Fail(path);
  WriteAll(file.Number(), text, path);
}

void PosixFileSystem::CreateFolder(const std::string& path) {
  if (mkdir(Native(path).c_str(), 0777) != 0) Fail(path);
}

void PosixFileSystem::Delete(const std::string& path) {
  if (unlink(Native(path).c_str()) != 0) Fail(path);
}

void PosixFileSystem::RemoveFolder(const std::string& path) {
  const std::string native = Native(path);
  if (rmdir(native.c_str()) == 0) return;
  const bool onlyLeftOver = errno == ENOTEMPTY && unlink((native + "/" + kUnfinishedName).c_str()) == 0;
  if (!onlyLeftOver || rmdir(native.c_str()) != 0) Fail(path);
}

}  // namespace dayvane::files
