// SPDX-License-Identifier: MIT
#include "tests/support/System.h"

#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <sys/stat.h>

#include "linux/LinuxFileSystem.h"
#include "linux/files/NativePath.h"

namespace dayvane::testing {

namespace {

void SetTime(const std::string& nativePath, time_t seconds, long nanoseconds) {
  const struct timespec times[2] = {{0, UTIME_OMIT}, {seconds, nanoseconds}};
  if (utimensat(AT_FDCWD, nativePath.c_str(), times, AT_SYMLINK_NOFOLLOW) != 0)
    throw std::runtime_error("cannot set the time of " + nativePath);
}

void SetZone(const char* name) {
  if (name != nullptr)
    setenv("TZ", name, 1);
  else
    unsetenv("TZ");
  tzset();
}

}  // namespace

std::unique_ptr<platform::FileSystem> SystemFiles() {
  return std::make_unique<files::LinuxFileSystem>();
}

std::string ProgramPath(const std::string& nativePath) {
  return files::FromNative(nativePath).value();
}

void SetWritten(const std::string& nativePath, const std::string& localTime, long nanoseconds) {
  struct tm parts {};
  if (strptime(localTime.c_str(), "%Y-%m-%d %H:%M:%S", &parts) == nullptr)
    throw std::runtime_error("no local time: " + localTime);
  parts.tm_isdst = -1;
  SetTime(nativePath, mktime(&parts), nanoseconds);
}

void SetWritten(const std::string& nativePath, std::int64_t moment) {
  SetTime(nativePath, static_cast<time_t>(moment), 0);
}

std::chrono::local_seconds LocalTime(std::int64_t moment) {
  return files::LocalTime(moment);
}

void MakeFileLink(const std::string& target, const std::string& nativePath) {
  std::filesystem::create_symlink(target, nativePath);
}

void MakeFolderLink(const std::string& target, const std::string& nativePath) {
  std::filesystem::create_directory_symlink(target, nativePath);
}

bool CanMakeLinks() {
  return true;
}

bool CanQuoteInNames() {
  return true;
}

void Hide(const std::string&) {
  // The name's dot does it.
}

LocalZone::LocalZone(const char* name) {
  if (const char* before = std::getenv("TZ")) m_before = before;
  SetZone(name);
}

LocalZone::~LocalZone() {
  SetZone(m_before ? m_before->c_str() : nullptr);
}

}  // namespace dayvane::testing
