// SPDX-License-Identifier: MIT
#include "linux/LinuxFileSystem.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "base/Error.h"
#include "linux/files/FileDescriptor.h"
#include "linux/files/NativePath.h"
#include "linux/files/SystemError.h"
#include "linux/files/UnfinishedFile.h"

namespace dayvane::files {

namespace {

using platform::DirectoryEntry;
using platform::FileContents;
using platform::FileStatus;

std::string Native(const std::string& path) {
  auto native = ToNative(path);
  if (!native) throw Error(kPathNotFound, "Path not found", path);
  return *native;
}

Place PlaceOf(const std::string& path) {
  return {Native(path), path};
}

/// Copies what the source holds from `position` to `end`; what was copied before ends there or earlier.
void CopyRange(int source, int target, off_t position, off_t end, const std::string& path) {
  if (position > 0 && lseek(target, position, SEEK_SET) < 0) Fail(path);
  char buffer[65536];
  while (position < end) {
    const auto wanted = static_cast<std::size_t>(std::min<off_t>(end - position, sizeof buffer));
    const ssize_t count = pread(source, buffer, wanted, position);
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

std::optional<FileStatus> LinuxFileSystem::Status(const std::string& path) {
  const auto native = ToNative(path);
  return native ? StatusOf({*native, path}) : std::nullopt;
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

std::vector<DirectoryEntry> LinuxFileSystem::List(const std::string& folder) {
  std::vector<DirectoryEntry> entries;
  const auto native = ToNative(folder);
  if (!native) return entries;
  for (const DirectoryEntry& entry : ListFolder({*native, folder}))
    // A name that has no form in the program's paths cannot be one that the program wrote.
    if (auto spelled = NameFromNative(entry.name)) entries.push_back({std::move(*spelled), entry.kind, entry.hidden});
  // As the disks of other systems list them: users see years in the order of the listing.
  std::ranges::sort(entries, {}, &DirectoryEntry::name);
  return entries;
}

FileContents LinuxFileSystem::Read(const std::string& path, std::size_t limit) {
  return ReadFile(PlaceOf(path), limit);
}

void LinuxFileSystem::Replace(const std::string& path, std::string_view bytes) {
  ReplaceFile(PlaceOf(path), bytes);
}

void LinuxFileSystem::ReplaceUnflushed(const std::string& path, std::string_view bytes) {
  if (TouchIfSame(Native(path), bytes)) return;
  UnfinishedFile file(Native(path), path);
  file.Write(bytes);
  file.Finish();
}

void LinuxFileSystem::Copy(const std::string& source, const std::string& destination) {
  struct stat status {};
  const FileDescriptor from = OpenFile(PlaceOf(source), O_RDONLY, status);
  UnfinishedFile to(Native(destination), destination);
  CopyContents(from.Number(), to.Number(), status.st_size, destination);
  to.SetWritten(status.st_mtim);
  to.Finish();
}

void LinuxFileSystem::Append(const std::string& path, std::string_view text) {
  struct stat status {};
  const FileDescriptor file = OpenFile(PlaceOf(path), O_WRONLY | O_CREAT | O_APPEND, status);
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
  DeleteFile(PlaceOf(path));
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
