#include "views/CFavorites.h"

#include <cmath>

#include "app/ReportErrors.h"
#include "base/Error.h"
#include "base/Required.h"
#include "base/Text.h"
#include "fs/Dir.h"
#include "fs/DirectoryWalker.h"
#include "views/FavoritesFile.h"

namespace dayvane {

namespace {

using namespace favorites;  // NOLINT(google-build-using-namespace): the table's own words, in its own file

/// More than two million documents; what is larger is no data file of this program.
constexpr std::size_t kLargestFile = std::size_t{512} << 20;

std::string Identity(const Record& record) {
  return text::ToUpper(TextOf(record[kFolder]) + "\\" + TextOf(record[kTargetFileName]));
}

Value OneMore(const Value& count) {
  if (const auto* whole = std::get_if<std::int64_t>(&count); whole != nullptr && *whole < INT64_MAX) return *whole + 1;
  // A count that was written as a text or with a fraction goes on as a number.
  const double more = NumberOf(count) + 1;
  constexpr double kExact = 9007199254740992.0;  // 2 to the 53rd: whole numbers up to here are exact
  if (more == std::floor(more) && std::fabs(more) < kExact) return static_cast<std::int64_t>(more);
  return more;
}

}  // namespace

void CFavorites::ProcessShortcut(const CShortcut* shortcut) {
  Assert(shortcut != nullptr, ".ProcessShortcut: Shortcut is Nothing");
  Required(shortcut);
  const auto found = Find(shortcut->TargetFile());
  if (found) {
    Record& record = m_table[*found];
    if (IsLater(shortcut->Modified(), record[kLastAccessed])) record[kLastAccessed] = shortcut->Modified();
    record[kDaysAccessed] = OneMore(record[kDaysAccessed]);
  } else {
    Append(*shortcut);
  }
}

std::optional<std::size_t> CFavorites::Find(const std::string& targetFile) {
  for (; m_indexed < m_table.size(); ++m_indexed) m_index.emplace(Identity(m_table[m_indexed]), m_indexed);
  const auto found = m_index.find(text::ToUpper(targetFile));
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
  record[kType] = shortcut.TargetClass();
  record[kIconFile] = shortcut.IconFile();
  record[kIconIndex] = std::int64_t{shortcut.IconIndex()};
  m_table.push_back(std::move(record));
}

void CFavorites::ClearTable() {
  m_table.clear();
  m_index.clear();
  m_indexed = 0;
}

std::string CFavorites::DataFile() const {
  return AppPath + "\\" + "Favorites.dat";
}

bool CFavorites::Read() {
  Assert(!text::Trim(AppPath).empty(), ".Read: App path is missing");
  auto& files = m_application.desktop.files;
  if (!FileExists(files, DataFile())) {
    RebuildFavorites();
    return false;
  }
  ReportErrors(m_application, kStartingTheProgram, ClassName, "Read", [&] {
    ClearTable();
    const std::string text = files.Read(DataFile(), kLargestFile).bytes;
    ReadRecords(text);
  });
  return true;
}

void CFavorites::ReadRecords(const std::string& text) {
  ValueReader reader(text);
  try {
    while (!reader.AtEnd())
      for (Value& value : m_table.emplace_back()) value = reader.Next();
  } catch (const Error&) {
    KeepDamagedFile(text);
    throw;  // The report is the caller's; only the copy must be made before anything is saved.
  }
}

void CFavorites::KeepDamagedFile(const std::string& text) const {
  const std::string copy = AppPath + "\\" + "Favorites.damaged.dat";
  m_application.desktop.files.Replace(copy, text);
  m_application.eventLog.Append("Favorites.dat ends inside a record; a copy is kept as Favorites.damaged.dat",
                                EventKind::Warning);
}

void CFavorites::Save() {
  Assert(!text::Trim(AppPath).empty(), ".Save: App path is missing");
  if (Count() <= 0) return;
  ReportErrors(m_application, kSavingSettings, ClassName, "Save", [&] {
    std::string text;
    for (const Record& record : m_table) text += FormatRecord(record);
    m_application.desktop.files.Replace(DataFile(), text);
  });
}

void CFavorites::RebuildFavorites() {
  Assert(!text::Trim(AppPath).empty(), ".RebuildFavorites: App path is missing");
  Assert(!text::Trim(DailyFolder).empty(), ".RebuildFavorites: Daily folder is missing");
  ReportErrors(m_application, kRebuildingFavorites, ClassName, "RebuildFavorites", [&] {
    ClearTable();
    CShortcut shortcut(m_application);
    DirectoryWalker m_oDirectoryWalker(m_application.desktop.files);
    m_oDirectoryWalker.ItemFound.Connect([&](const std::string& path, const std::string& fileName, bool&) {
      m_oDirectoryWalker_ItemFound(shortcut, path, fileName);
    });
    m_oDirectoryWalker.WalkDirectoryTree(AppPath + "\\" + DailyFolder + "\\", "*.lnk");
  });
}

void CFavorites::m_oDirectoryWalker_ItemFound(CShortcut& shortcut, const std::string& path,
                                              const std::string& fileName) {
  shortcut.SetFile(path + fileName);
  ProcessShortcut(&shortcut);
  m_application.desktop.windowing.ProcessPendingMessages();
}

}  // namespace dayvane
