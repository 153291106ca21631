// SPDX-License-Identifier: MIT
#include "linux/recent/RecentListFile.h"

#include <cerrno>
#include <fcntl.h>
#include <utility>

#include "base/Error.h"
#include "linux/files/NativeFile.h"
#include "linux/files/XdgFolders.h"

namespace dayvane::recent {

std::string DefaultListPath() {
  return xdg::DataFolder(xdg::Environment::OfProcess()) + "/recently-used.xbel";
}

RecentListFile::RecentListFile(std::string path, std::size_t limit) : m_path(std::move(path)), m_limit(limit) {}

RecentListFile::Version::Version(const struct stat& status)
    : inode(status.st_ino),
      size(status.st_size),
      writtenSeconds(status.st_mtim.tv_sec),
      writtenNanoseconds(status.st_mtim.tv_nsec) {}

std::optional<RecentListFile::Version> RecentListFile::CurrentVersion() const {
  struct stat status {};
  if (stat(m_path.c_str(), &status) != 0) return std::nullopt;
  return Version(status);
}

ListReading RecentListFile::Read() {
  m_isDue = false;
  std::string bytes;
  ListReading reading;
  reading.condition = ReadBytes(bytes);
  if (reading.condition != ListCondition::Sound) return reading;
  reading.list = ParseRecentList(bytes);
  if (reading.list.isWellFormed) {
    m_damaged.reset();
    return reading;
  }
  reading.condition = reading.list.isComplete ? ListCondition::Damaged : ListCondition::CutShort;
  // Some programs write the list in place, so this may have been half a file: it is read once more. A version that is
  // still damaged then is not read again.
  m_isDue = m_isDue || m_damaged != m_read;
  m_damaged = m_read;
  return reading;
}

/// Sound when all bytes could be read.
ListCondition RecentListFile::ReadBytes(std::string& bytes) {
  // Not blocking: a named pipe in place of the list must not stop the program. Links are followed: some users keep
  // their data folder's files elsewhere.
  const files::FileDescriptor file(open(m_path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  const bool isMissing = !file.IsOpen() && (errno == ENOENT || errno == ENOTDIR);
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) {
    m_read = CurrentVersion();
    // Restoring the permission does not change the file's version.
    m_isDue = !isMissing;
    return isMissing ? ListCondition::Missing : ListCondition::Unreadable;
  }
  m_read = Version(status);
  if (!S_ISREG(status.st_mode)) return ListCondition::Unreadable;
  if (static_cast<std::size_t>(status.st_size) > m_limit) return ListCondition::TooLarge;
  try {
    bytes = files::ReadOpenFile(file.Number(), status, m_limit, m_path);
  } catch (const Error&) {
    m_isDue = true;
    return ListCondition::Unreadable;
  }
  struct stat after {};
  m_isDue = fstat(file.Number(), &after) != 0 || Version(after) != *m_read;
  return ListCondition::Sound;
}

}  // namespace dayvane::recent
