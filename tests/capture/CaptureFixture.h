// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "links/ShellLinkFormat.h"
#include "tests/support/MainWindow.h"

namespace dayvane::testing {

/// The main window of a user who opens OpenDocument texts.
class CaptureTest : public ::testing::Test, protected MainWindow {
 protected:
  CaptureTest() { desktop.registry.AddClass(".ODT", "OpenDocument Text"); }

  std::string Open(const std::string& time, const std::string& target = "Z:\\home\\ana\\Report.odt") {
    return desktop.OpenDocument(target, time);
  }
  /// The program that opens documents from now on.
  void UseProgram(const std::string& name) {
    desktop.folder.Write("bin/" + name, "");
    desktop.registry.AddClass(".ODT", "Text", "", "\"" + desktop.folder.Path() + "\\bin\\" + name + "\" \"%1\"");
  }
  std::string ProgramIn(const std::string& path) const {
    return links::ParseShellLink(ReadFile(Daily(path))).value().target;
  }
  std::vector<std::string> NamesIn(const std::string& day) const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Daily(day)))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }
  std::string FavoritesText() const {
    return std::filesystem::exists(FavoritesFile()) ? ReadFile(FavoritesFile()) : "";
  }
};

}  // namespace dayvane::testing
