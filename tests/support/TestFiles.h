// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "tests/support/System.h"

namespace dayvane::testing {

/// The real disk, with something that happens before a file or a folder is looked at, before a file is read and before
/// each change.
class TestFiles : public platform::FileSystem {
 public:
  std::optional<platform::FileStatus> Status(const std::string& path) override;
  std::string Resolve(const std::string& path) override;
  std::vector<platform::DirectoryEntry> List(const std::string& folder) override;
  platform::FileContents Read(const std::string& path, std::size_t limit) override;
  void Replace(const std::string& path, std::string_view bytes) override;
  void ReplaceUnflushed(const std::string& path, std::string_view bytes) override;
  void Copy(const std::string& source, const std::string& destination) override;
  void Append(const std::string& path, std::string_view text) override;
  void CreateFolder(const std::string& path) override;
  void Rename(const std::string& path, const std::string& newPath) override;
  void Delete(const std::string& path) override;
  void RemoveFolder(const std::string& path) override;

  std::function<void(const std::string& path)> beforeStatus = [](const std::string&) {};
  std::function<void(const std::string& path)> beforeRead = [](const std::string&) {};
  std::function<void(const std::string& path)> beforeChange = [](const std::string&) {};

 private:
  std::unique_ptr<platform::FileSystem> m_disk = SystemFiles();
};

}  // namespace dayvane::testing
