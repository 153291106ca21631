// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// The project's own files, read as text by the tests that keep its house in order.
namespace dayvane::testing {

/// Paths below a folder of the project, relative to that folder and sorted, of files with one of the endings.
std::vector<std::string> FilesBelow(const std::string& folder, const std::vector<std::string>& endings);

/// The text of a file of the project, given relative to the project's folder.
std::string ProjectFile(const std::string& name);

/// What one #include line names: "app/Date.h" with quotes or <string> with angles.
struct Include {
  std::string name;
  bool angled = false;
};

std::vector<Include> IncludesIn(const std::string& text);

}  // namespace dayvane::testing
