// SPDX-License-Identifier: MIT
#include "views/FavoritesJournal.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <unordered_set>

#include "app/IgnoreErrors.h"
#include "base/Text.h"
#include "fs/Dir.h"

namespace dayvane::favorites {

namespace {

constexpr std::string_view kTitle = "dayvane-pending 1 ";
constexpr std::size_t kLargestFile = std::size_t{64} << 20;

std::string Line(const std::string& shortcutFile) {
  return std::to_string(shortcutFile.size()) + " " + shortcutFile + "\n";
}

std::optional<std::string> PathOf(std::string_view line) {
  const auto blank = std::min(line.find(' '), line.size());
  const std::string_view path = line.substr(std::min(blank + 1, line.size()));
  const auto length = text::ToInt32(line.substr(0, blank));
  if (!length || *length <= 0 || static_cast<std::size_t>(*length) != path.size()) return std::nullopt;
  return std::string(path);
}

}  // namespace

std::string DataIdentity(const std::optional<std::string>& bytes) {
  if (!bytes) return "none";
  // http://www.isthe.com/chongo/tech/comp/fnv/, 64 bits
  std::uint64_t hash = 14695981039346656037U;
  for (const char byte : *bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211U;
  return std::to_string(bytes->size()) + "-" + std::to_string(hash);
}

std::vector<std::string> FavoritesJournal::Read(const std::string& identity) const {
  std::vector<std::string> paths;
  if (!FileExists(m_files, m_path)) return paths;
  const std::string bytes = m_files.Read(m_path, kLargestFile).bytes;
  std::string_view rest = bytes;
  std::unordered_set<std::string> seen;
  bool isOfThisVersion = false;
  while (const auto line = text::TakeLine(rest)) {
    if (line->starts_with(kTitle)) isOfThisVersion = line->substr(kTitle.size()) == identity;
    auto path = isOfThisVersion ? PathOf(*line) : std::nullopt;
    if (path && seen.insert(*path).second) paths.push_back(std::move(*path));
  }
  return paths;
}

void FavoritesJournal::Begin(const std::string& identity, const std::vector<std::string>& shortcutFiles) const {
  std::string lines = std::string(kTitle) + identity + "\n";
  for (const std::string& file : shortcutFiles) lines += Line(file);
  // A line that was cut short must not swallow the title.
  m_files.Append(m_path, (FileExists(m_files, m_path) ? "\n" : "") + lines);
}

void FavoritesJournal::Add(const std::string& shortcutFile) const {
  m_files.Append(m_path, Line(shortcutFile));
}

void FavoritesJournal::End() const {
  IgnoreErrors([this] { m_files.Delete(m_path); });
}

}  // namespace dayvane::favorites
