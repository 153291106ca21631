// SPDX-License-Identifier: MIT
#include "tests/support/TestFiles.h"

namespace dayvane::testing {

std::optional<platform::FileStatus> TestFiles::Status(const std::string& path) {
  beforeStatus(path);
  return LinuxFileSystem::Status(path);
}

platform::FileContents TestFiles::Read(const std::string& path, std::size_t limit) {
  beforeRead(path);
  return LinuxFileSystem::Read(path, limit);
}

void TestFiles::Replace(const std::string& path, std::string_view bytes) {
  beforeChange(path);
  LinuxFileSystem::Replace(path, bytes);
}

void TestFiles::ReplaceUnflushed(const std::string& path, std::string_view bytes) {
  beforeChange(path);
  LinuxFileSystem::ReplaceUnflushed(path, bytes);
}

void TestFiles::Copy(const std::string& source, const std::string& destination) {
  beforeChange(destination);
  LinuxFileSystem::Copy(source, destination);
}

void TestFiles::Append(const std::string& path, std::string_view text) {
  beforeChange(path);
  LinuxFileSystem::Append(path, text);
}

void TestFiles::CreateFolder(const std::string& path) {
  beforeChange(path);
  LinuxFileSystem::CreateFolder(path);
}

void TestFiles::Rename(const std::string& path, const std::string& newPath) {
  beforeChange(path);
  LinuxFileSystem::Rename(path, newPath);
}

void TestFiles::Delete(const std::string& path) {
  beforeChange(path);
  LinuxFileSystem::Delete(path);
}

void TestFiles::RemoveFolder(const std::string& path) {
  beforeChange(path);
  LinuxFileSystem::RemoveFolder(path);
}

}  // namespace dayvane::testing
