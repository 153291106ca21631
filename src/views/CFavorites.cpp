// SPDX-License-Identifier: MIT
#include "views/CFavorites.h"

#include <algorithm>

#include "app/ReportErrors.h"
#include "base/Text.h"
#include "fs/DirectoryWalker.h"

namespace dayvane {

namespace {

using namespace favorites;  // NOLINT(google-build-using-namespace): the table's own words, in its own file

/// Upper case, by way of small letters: a record's folder has come in those, and the capital of a small letter is not
/// always the one that it came from ("İ", "ẞ").
std::string UpperCase(const std::string& path) {
  return text::ToUpper(text::ToLower(path));
}

std::string Identity(const Record& record) {
  return UpperCase(TextOf(record[kFolder]) + "\\" + TextOf(record[kTargetFileName]));
}

/// A text of the desktop's that the data file can hold: nothing in it ends a text or separates two.
std::string Storable(std::string text) {
  std::replace(text.begin(), text.end(), '"', '\'');
  std::replace(text.begin(), text.end(), ',', ';');
  return text;
}

}  // namespace

void CFavorites::ProcessShortcut(const CShortcut* shortcut) {
  CountInTable(Demand(shortcut, ".ProcessShortcut: Shortcut is Nothing"));
  if (std::erase(m_uncounted, shortcut->File()) > 0) m_unsaved.push_back(shortcut->File());
}

void CFavorites::CountInTable(const CShortcut& shortcut) {
  const auto found = Find(shortcut.TargetFile());
  if (found) {
    Record& record = m_table[*found];
    if (IsLater(shortcut.Modified(), record[kLastAccessed])) record[kLastAccessed] = shortcut.Modified();
    record[kDaysAccessed] = OneMore(record[kDaysAccessed]);
  } else {
    Append(shortcut);
  }
}

std::optional<std::size_t> CFavorites::Find(const std::string& targetFile) {
  for (; m_indexed < m_table.size(); ++m_indexed) m_index.emplace(Identity(m_table[m_indexed]), m_indexed);
  const auto found = m_index.find(UpperCase(targetFile));
  if (found == m_index.end()) return std::nullopt;
  return found->second;
}

void CFavorites::Append(const CShortcut& shortcut) {
  Record record;
  record[kDaysAccessed] = std::int64_t{1};
  record[kLastAccessed] = shortcut.Modified();
  record[kShortcutFile] = shortcut.File();
  record[kTargetFileName] = shortcut.TargetFileName();
  record[kFolder] = shortcut.WorkingDirectory();
  record[kType] = Storable(shortcut.TargetClass());
  record[kIconFile] = Storable(shortcut.IconFile());
  record[kIconIndex] = std::int64_t{shortcut.IconIndex()};
  m_table.push_back(std::move(record));
}

void CFavorites::ClearTable() {
  m_table.clear();
  m_index.clear();
  m_indexed = 0;
}

void CFavorites::RebuildFavorites() {
  Assert(!text::Trim(AppPath).empty(), ".RebuildFavorites: App path is missing");
  Assert(!text::Trim(DailyFolder).empty(), ".RebuildFavorites: Daily folder is missing");
  m_isWhole = ReportErrors(m_application, kRebuildingFavorites, ClassName, "RebuildFavorites", [&] {
    ClearTable();
    CShortcut shortcut(m_application);
    DirectoryWalker m_oDirectoryWalker(m_application.desktop.files);
    m_oDirectoryWalker.ItemFound.Connect([&](const std::string& path, const std::string& fileName, bool&) {
      m_oDirectoryWalker_ItemFound(shortcut, path, fileName);
    });
    m_oDirectoryWalker.WalkDirectoryTree(AppPath + "\\" + DailyFolder + "\\", "*.lnk");
  });
  if (!m_isWhole) return;
  m_unsaved.insert(m_unsaved.end(), m_uncounted.begin(), m_uncounted.end());
  m_uncounted.clear();
}

void CFavorites::m_oDirectoryWalker_ItemFound(CShortcut& shortcut, const std::string& path,
                                              const std::string& fileName) {
  shortcut.SetFile(path + fileName);
  ProcessShortcut(&shortcut);
  m_application.desktop.windowing.ProcessPendingMessages();
}

}  // namespace dayvane
