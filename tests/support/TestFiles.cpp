// SPDX-License-Identifier: MIT
#include "tests/support/TestFiles.h"

namespace dayvane::testing {

std::optional<platform::FileStatus> TestFiles::Status(const std::string& path) {
  beforeStatus(path);
  return m_disk->Status(path);
}

std::string TestFiles::Resolve(const std::string& path) {
  return m_disk->Resolve(path);
}

std::vector<platform::DirectoryEntry> TestFiles::List(const std::string& folder) {
  return m_disk->List(folder);
}

platform::FileContents TestFiles::Read(const std::string& path, std::size_t limit) {
  beforeRead(path);
  return m_disk->Read(path, limit);
}

void TestFiles::Replace(const std::string& path, std::string_view bytes) {
  beforeChange(path);
  m_disk->Replace(path, bytes);
}

void TestFiles::ReplaceUnflushed(const std::string& path, std::string_view bytes) {
  beforeChange(path);
  m_disk->ReplaceUnflushed(path, bytes);
}

void TestFiles::Copy(const std::string& source, const std::string& destination) {
  beforeChange(destination);
  m_disk->Copy(source, destination);
}

void TestFiles::Append(const std::string& path, std::string_view text) {
  beforeChange(path);
  m_disk->Append(path, text);
}

void TestFiles::CreateFolder(const std::string& path) {
  beforeChange(path);
  m_disk->CreateFolder(path);
}

void TestFiles::Rename(const std::string& path, const std::string& newPath) {
  beforeChange(path);
  m_disk->Rename(path, newPath);
}

void TestFiles::Delete(const std::string& path) {
  beforeChange(path);
  m_disk->Delete(path);
}

void TestFiles::RemoveFolder(const std::string& path) {
  beforeChange(path);
  m_disk->RemoveFolder(path);
}

}  // namespace dayvane::testing
