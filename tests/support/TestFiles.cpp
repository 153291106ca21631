#include "tests/support/TestFiles.h"

namespace dayvane::testing {

std::optional<platform::FileStatus> TestFiles::Status(const std::string& path) {
  beforeStatus(path);
  return PosixFileSystem::Status(path);
}

platform::FileContents TestFiles::Read(const std::string& path, std::size_t limit) {
  beforeRead(path);
  return PosixFileSystem::Read(path, limit);
}

void TestFiles::Replace(const std::string& path, std::string_view bytes) {
  beforeChange(path);
  PosixFileSystem::Replace(path, bytes);
}

void TestFiles::Copy(const std::string& source, const std::string& destination) {
  beforeChange(destination);
  PosixFileSystem::Copy(source, destination);
}

void TestFiles::Append(const std::string& path, std::string_view text) {
  beforeChange(path);
  PosixFileSystem::Append(path, text);
}

void TestFiles::CreateFolder(const std::string& path) {
  beforeChange(path);
  PosixFileSystem::CreateFolder(path);
}

void TestFiles::Rename(const std::string& path, const std::string& newPath) {
  beforeChange(path);
  PosixFileSystem::Rename(path, newPath);
}

void TestFiles::Delete(const std::string& path) {
  beforeChange(path);
  PosixFileSystem::Delete(path);
}

void TestFiles::RemoveFolder(const std::string& path) {
  beforeChange(path);
  PosixFileSystem::RemoveFolder(path);
}

}  // namespace dayvane::testing
