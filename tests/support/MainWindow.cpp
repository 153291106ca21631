// SPDX-License-Identifier: MIT
#include "tests/support/MainWindow.h"

#include <filesystem>

#include "app/ShellServices.h"

namespace dayvane::testing {

namespace {

void AddTexts(const controls::TreeNode& node, const std::string& indent, std::vector<std::string>& texts) {
  texts.push_back(indent + node.text);
  for (const auto& child : node.children) AddTexts(*child, indent + " ", texts);
}

}  // namespace

MainWindow::MainWindow() {
  desktop.registry.Settings("Options") = {{"Favorites Threshold", "2"}, {"Purge Age", "30"}, {"Timer Interval", "60"}};
}

void MainWindow::File(const std::string& day, const std::string& target, const std::string& localTime) const {
  std::filesystem::create_directories(Daily(day));
  platform::ShellLink link;
  link.target = target;
  WriteShortcut(Daily(day) + "/" + SplitPath(target).fileName + ".lnk", link, localTime);
}

std::vector<std::string> ColumnOf(const controls::ListView& list, std::size_t column) {
  std::vector<std::string> texts;
  for (std::size_t row = 0; row < list.Count(); ++row) texts.push_back(list.Row(row).Text(column));
  return texts;
}

std::vector<std::string> TextsOf(const controls::TreeView& tree) {
  std::vector<std::string> texts;
  for (const auto& root : tree.Roots()) AddTexts(*root, "", texts);
  return texts;
}

}  // namespace dayvane::testing
