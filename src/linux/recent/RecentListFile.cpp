#include "linux/recent/RecentListFile.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

#include "linux/files/FileDescriptor.h"
#include "linux/files/XdgFolders.h"

namespace dayvane::recent {

namespace {

/// All of an open file up to `limit` bytes; false when it cannot be read.
bool ReadUpTo(std::size_t limit, int file, std::string& bytes) {
  constexpr std::size_t kStep = 65536;
  while (bytes.size() < limit) {
    const std::size_t used = bytes.size();
    bytes.resize(std::min(limit, used + std::max(kStep, used)));
    const ssize_t count = read(file, bytes.data() + used, bytes.size() - used);
    bytes.resize(used + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return count == 0;
  }
  return true;
}

}  // namespace

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

bool RecentListFile::IsDue() const {
  return m_isDue || CurrentVersion() != m_read;
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
  // Not every program writes the list whole: this may have been a look at half a file. One more look tells; a version
  // that stays damaged is not read again and again.
  m_isDue = m_isDue || m_damaged != m_read;
  m_damaged = m_read;
  return reading;
}

/// Sound when the bytes are there to be read as a list.
ListCondition RecentListFile::ReadBytes(std::string& bytes) {
  // Not blocking: a named pipe in place of the list must not stop the program. Links are followed: some users keep
  // their data folder's files elsewhere.
  const files::FileDescriptor file(open(m_path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  const bool isMissing = !file.IsOpen() && (errno == ENOENT || errno == ENOTDIR);
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) {
    m_read = CurrentVersion();
    // Permission can be given back without a trace in the file's version.
    m_isDue = !isMissing;
    return isMissing ? ListCondition::Missing : ListCondition::Unreadable;
  }
  m_read = Version(status);
  if (!S_ISREG(status.st_mode)) return ListCondition::Unreadable;
  if (static_cast<std::size_t>(status.st_size) > m_limit) return ListCondition::TooLarge;
  if (!ReadUpTo(m_limit, file.Number(), bytes)) {
    m_isDue = true;
    return ListCondition::Unreadable;
  }
  struct stat after {};
  m_isDue = fstat(file.Number(), &after) != 0 || Version(after) != *m_read;
  return ListCondition::Sound;
}

}  // namespace dayvane::recent
