// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace dayvane::testing {

/// A folder of its own for one test, gone with everything in it when the test ends.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  const std::string& Native() const { return m_native; }  ///< "/tmp/dayvane-test-…"
  std::string Path() const;                               ///< the same in the program's form

  /// Native path of something in the folder.
  std::string operator/(const std::string& name) const { return m_native + "/" + name; }

  /// Writes a file below the folder (its folders are made) and returns its native path.
  std::string Write(const std::string& name, const std::string& bytes) const;

 private:
  std::string m_native;
};

/// The path for a native one in UTF-8, which is not what every system takes a plain text for.
std::filesystem::path PathOf(const std::string& nativePath);

std::string ReadFile(const std::string& nativePath);

}  // namespace dayvane::testing
