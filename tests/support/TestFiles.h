#pragma once

#include <functional>

#include "linux/files/PosixFileSystem.h"

namespace dayvane::testing {

/// The real disk, with something that happens before each change of it.
class TestFiles : public files::PosixFileSystem {
 public:
  void Replace(const std::string& path, std::string_view bytes) override;
  void Copy(const std::string& source, const std::string& destination) override;
  void Append(const std::string& path, std::string_view text) override;
  void CreateFolder(const std::string& path) override;
  void Rename(const std::string& path, const std::string& newPath) override;
  void Delete(const std::string& path) override;
  void RemoveFolder(const std::string& path) override;

  std::function<void(const std::string& path)> beforeChange = [](const std::string&) {};
};

}  // namespace dayvane::testing
