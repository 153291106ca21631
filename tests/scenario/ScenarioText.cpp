// SPDX-License-Identifier: MIT
#include "tests/scenario/ScenarioText.h"

#include <algorithm>
#include <filesystem>
#include <regex>

#include "base/Text.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::testing {

namespace {

namespace fs = std::filesystem;

std::string WithSlashes(std::string path) {
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

/// Without regard to the case of ASCII letters: the program writes the folders of documents in small ones.
void ReplaceAll(std::string& text, const std::string& folder, const std::string& name) {
  const auto isSame = [](char a, char b) {
    const auto small = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return small(a) == small(b);
  };
  for (auto from = text.begin();;) {
    const auto found = std::search(from, text.end(), folder.begin(), folder.end(), isSame);
    if (found == text.end()) return;
    const auto at = found - text.begin();
    text.replace(static_cast<std::size_t>(at), folder.size(), name);
    from = text.begin() + at + static_cast<std::ptrdiff_t>(name.size());
  }
}

std::vector<std::string> NamesBelow(const std::string& nativeFolder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::recursive_directory_iterator(PathOf(nativeFolder))) {
    const auto name = entry.path().lexically_relative(PathOf(nativeFolder)).generic_u8string();
    names.emplace_back(name.begin(), name.end());
  }
  std::sort(names.begin(), names.end());
  return names;
}

void AddNodes(const controls::TreeView& tree, const controls::TreeNode& node, const std::string& indent,
              std::vector<std::string>& lines) {
  lines.push_back(indent + node.text + (tree.SelectedItem() == &node ? " *" : ""));
  for (const auto& child : node.children) AddNodes(tree, *child, indent + "  ", lines);
}

/// The nodes in pre-order; a star is behind the selected one.
std::vector<std::string> NodesOf(const controls::TreeView& tree) {
  std::vector<std::string> lines;
  for (const auto& root : tree.Roots()) AddNodes(tree, *root, "", lines);
  return lines;
}

/// The shown texts of all columns.
std::vector<std::string> RowsOf(const controls::ListView& list) {
  std::vector<std::string> lines;
  for (std::size_t row = 0; row < list.Count(); ++row) {
    lines.push_back(list.Row(row).text);
    for (std::size_t column = 1; column < list.Columns().size(); ++column)
      lines.back() += " | " + list.Row(row).Text(column);
  }
  return lines;
}

std::vector<std::string> LinesOf(const std::string& nativeFile) {
  std::vector<std::string> lines;
  if (!fs::exists(PathOf(nativeFile))) return lines;
  std::string text = ReadFile(nativeFile);
  std::erase(text, '\r');
  std::string_view rest = text;
  while (const auto line = text::TakeLine(rest)) lines.emplace_back(*line);
  if (!rest.empty()) lines.emplace_back(rest);
  return lines;
}

std::string OnOneLine(const std::string& message) {
  return std::regex_replace(message, std::regex("\r\n"), " / ");
}

}  // namespace

ScenarioText::ScenarioText(const std::vector<std::pair<std::string, std::string>>& folders,
                           const std::string& programs) {
  // The program's form first, of which the native one may be the end.
  m_names.emplace_back(WithSlashes(programs), "<programs>");
  for (const auto& [folder, name] : folders) {
    m_names.emplace_back(WithSlashes(ProgramPath(folder)), name);
    m_names.emplace_back(WithSlashes(folder), name);
  }
  // People read such a path without its drive where the desktop has none.
  m_names.emplace_back(WithSlashes(programs).substr(2), "<programs>");
}

std::string ScenarioText::ChangesIn(const FMain& window, const std::vector<std::string>& messages,
                                    const std::string& record) {
  std::string text;
  for (const std::string& message : messages) text += "Message: " + Plain(OnOneLine(message)) + "\n";
  return text + Section("Capture", {window.tmrMain.Enabled() ? "on" : "off"}) +
         Section("Files", NamesBelow(record + "/Daily")) + Section("tvwMain", NodesOf(window.tvwMain)) +
         Section("lvwDaily", RowsOf(window.lvwDaily)) + Section("lvwFavorites", RowsOf(window.lvwFavorites)) +
         Section("sbrMain", {window.sbrMain.Text()}) + Section("Favorites.dat", LinesOf(record + "/Favorites.dat")) +
         Section("ErrorLog.txt", LinesOf(record + "/ErrorLog.txt"));
}

std::string ScenarioText::Section(const std::string& title, const Lines& lines) {
  std::string text = title + ":\n";
  for (const std::string& line : lines) text += "  " + Plain(line) + "\n";
  return std::exchange(m_sections[title], text) == text ? "" : text;
}

std::string ScenarioText::Plain(std::string line) const {
  // Shown and stored, the moment of a program's shortcut is that of its making, by the system's clock.
  static const std::regex moment(R"(#[^#]+#|\d+/\d+/\d+ [\d:]+|\d+:\d+)");
  line = WithSlashes(line);
  for (const auto& [folder, name] : m_names) ReplaceAll(line, folder, name);
  if (line.find("<programs>") == std::string::npos) return line;
  return std::regex_replace(line, moment, "(made)");
}

}  // namespace dayvane::testing
