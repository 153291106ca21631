// SPDX-License-Identifier: MIT
#include "tests/support/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

#include "tests/support/System.h"

namespace dayvane::testing {

namespace fs = std::filesystem;

namespace {

/// A new folder for the user alone, of a name that no other test has found.
std::string MakeFolder() {
  std::random_device random;
  for (;;) {
    const fs::path path = fs::temp_directory_path() / ("dayvane-test-" + std::to_string(random()));
    if (!fs::create_directory(path)) continue;
    fs::permissions(path, fs::perms::owner_all);
    return path.generic_string();
  }
}

}  // namespace

TemporaryFolder::TemporaryFolder() : m_native(MakeFolder()) {}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(PathOf(m_native), ignored);
}

std::string TemporaryFolder::Path() const {
  return ProgramPath(m_native);
}

std::string TemporaryFolder::Write(const std::string& name, const std::string& bytes) const {
  const std::string path = *this / name;
  fs::create_directories(PathOf(path).parent_path());
  std::ofstream file(PathOf(path), std::ios::binary);
  file << bytes;
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
  return path;
}

fs::path PathOf(const std::string& nativePath) {
  return std::u8string(nativePath.begin(), nativePath.end());
}

std::string ReadFile(const std::string& nativePath) {
  std::ifstream file(PathOf(nativePath), std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + nativePath);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace dayvane::testing
