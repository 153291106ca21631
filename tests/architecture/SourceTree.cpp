// SPDX-License-Identifier: MIT
#include "tests/architecture/SourceTree.h"

#include <algorithm>
#include <filesystem>
#include <regex>
#include <sstream>

#include "tests/support/TemporaryFolder.h"

namespace dayvane::testing {

namespace fs = std::filesystem;

std::vector<std::string> FilesBelow(const std::string& folder, const std::vector<std::string>& endings) {
  const fs::path root = fs::path(DAYVANE_SOURCE_FOLDER) / folder;
  std::vector<std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    const std::string name = entry.path().lexically_relative(root).generic_string();
    if (std::any_of(endings.begin(), endings.end(), [&](const auto& ending) { return name.ends_with(ending); }))
      files.push_back(name);
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::string ProjectFile(const std::string& name) {
  return ReadFile(std::string(DAYVANE_SOURCE_FOLDER) + "/" + name);
}

std::vector<Include> IncludesIn(const std::string& text) {
  static const std::regex pattern(R"re(^\s*#\s*include\s*([<"])([^">]+)[">])re");
  std::vector<Include> includes;
  std::istringstream lines(text);
  std::smatch match;
  for (std::string line; std::getline(lines, line);)
    if (std::regex_search(line, match, pattern)) includes.push_back({match[2], match[1] == "<"});
  return includes;
}

}  // namespace dayvane::testing
