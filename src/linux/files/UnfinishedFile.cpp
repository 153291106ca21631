// SPDX-License-Identifier: MIT
#include "linux/files/UnfinishedFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "linux/files/SystemError.h"

namespace dayvane::files {

void WriteAll(int file, std::string_view bytes, const std::string& path) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) Fail(path);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

UnfinishedFile::UnfinishedFile(std::string destination, std::string path)
    : m_destination(std::move(destination)),
      m_path(std::move(path)),
      m_unfinished(m_destination.substr(0, m_destination.rfind('/') + 1) + kUnfinishedName),
      m_file(Create()) {}

UnfinishedFile::~UnfinishedFile() {
  if (!m_done) unlink(m_unfinished.c_str());
}

FileDescriptor UnfinishedFile::Create() const {
  constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW;
  FileDescriptor file(open(m_unfinished.c_str(), kFlags, 0666));
  if (!file.IsOpen() && errno == EEXIST && unlink(m_unfinished.c_str()) == 0)
    file = FileDescriptor(open(m_unfinished.c_str(), kFlags, 0666));
  if (!file.IsOpen()) Fail(m_path);
  return file;
}

void UnfinishedFile::SetWritten(const struct timespec& written) const {
  const struct timespec times[2] = {{0, UTIME_OMIT}, written};
  if (futimens(Number(), times) != 0) Fail(m_path);
}

void UnfinishedFile::FlushToDisk() const {
  if (fdatasync(Number()) != 0) Fail(m_path);
}

void UnfinishedFile::Finish() {
  // A file system over the network may tell only now that the bytes found no room.
  if (!m_file.Close()) Fail(m_path);
  if (rename(m_unfinished.c_str(), m_destination.c_str()) != 0) Fail(m_path);
  m_done = true;
}

}  // namespace dayvane::files
