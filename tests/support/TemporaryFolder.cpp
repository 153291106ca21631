// SPDX-License-Identifier: MIT
#include "tests/support/TemporaryFolder.h"

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <stdlib.h>
#include <sys/stat.h>
#include <time.h>

#include "linux/files/NativePath.h"

namespace dayvane::testing {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
  std::string name = (fs::temp_directory_path() / "dayvane-test-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder: " + name);
  m_native = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(m_native, ignored);
}

std::string TemporaryFolder::Path() const {
  return files::FromNative(m_native).value();
}

std::string TemporaryFolder::Write(const std::string& name, const std::string& bytes) const {
  const std::string path = *this / name;
  fs::create_directories(fs::path(path).parent_path());
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
  return path;
}

std::string ReadFile(const std::string& nativePath) {
  std::ifstream file(nativePath, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + nativePath);
  return {std::istreambuf_iterator<char>(file), {}};
}

void SetWritten(const std::string& nativePath, const std::string& localTime, long nanoseconds) {
  struct tm parts {};
  if (strptime(localTime.c_str(), "%Y-%m-%d %H:%M:%S", &parts) == nullptr)
    throw std::runtime_error("no local time: " + localTime);
  parts.tm_isdst = -1;
  const struct timespec times[2] = {{0, UTIME_OMIT}, {mktime(&parts), nanoseconds}};
  if (utimensat(AT_FDCWD, nativePath.c_str(), times, AT_SYMLINK_NOFOLLOW) != 0)
    throw std::runtime_error("cannot set the time of " + nativePath);
}

}  // namespace dayvane::testing
