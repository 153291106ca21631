// The favorites on the disk: the data file, and the journal of what it does not count yet.

#include <utility>

#include "app/IgnoreErrors.h"
#include "app/ReportErrors.h"
#include "base/Error.h"
#include "base/Text.h"
#include "fs/Dir.h"
#include "views/CFavorites.h"
#include "views/FavoritesFile.h"

namespace dayvane {

namespace {

using namespace favorites;  // NOLINT(google-build-using-namespace): the table's own words, in its own file

/// More than two million documents; what is larger is no data file of this program.
constexpr std::size_t kLargestFile = std::size_t{512} << 20;

}  // namespace

std::string CFavorites::DataFile() const {
  // The user may keep the file elsewhere and have a link here.
  return m_application.desktop.files.Resolve(AppPath + "\\" + "Favorites.dat");
}

FavoritesJournal CFavorites::Journal() const {
  return {m_application.desktop.files, AppPath + "\\" + "Favorites.pending"};
}

std::string CFavorites::VersionOnDisk() const {
  auto& files = m_application.desktop.files;
  std::string identity = "unreadable";
  IgnoreErrors([&] {
    std::optional<std::string> bytes;
    if (FileExists(files, DataFile())) bytes = files.Read(DataFile(), kLargestFile).bytes;
    identity = DataIdentity(bytes);
  });
  return identity;
}

void CFavorites::CountWhatWasCutOff() {
  const bool isSettled = IgnoreErrors([this] {
    auto& files = m_application.desktop.files;
    m_unsaved = Journal().Read(VersionOnDisk());
    // What was never filed will be, and is counted then. Without a data file all is counted by the rebuild.
    std::erase_if(m_unsaved, [&](const std::string& filed) { return !FileExists(files, filed); });
    if (!FileExists(files, DataFile())) m_unsaved.clear();
    if (m_unsaved.empty()) return Journal().End();
    // At once and not when the table is loaded: a purge may take away what was filed before that.
    ClearTable();
    ReadTable();
    CountUnsaved();
    Write();
  });
  if (!isSettled)
    m_application.eventLog.Append("What an earlier session filed last could not be counted yet", EventKind::Warning);
  ClearTable();
}

void CFavorites::WillCount(const std::string& shortcutFile) {
  if (m_unsaved.empty())
    Journal().Begin(VersionOnDisk(), shortcutFile);
  else
    Journal().Add(shortcutFile);
  m_unsaved.push_back(shortcutFile);
}

void CFavorites::CountUnsaved() {
  CShortcut shortcut(m_application);
  for (const std::string& filed : m_unsaved) {
    if (!FileExists(m_application.desktop.files, filed)) continue;  // its filing failed
    // One record whose count is no number, or one shortcut that is gone, must not cost the others theirs.
    const bool isCounted = IgnoreErrors([&] {
      shortcut.SetFile(filed);
      ProcessShortcut(&shortcut);
    });
    if (!isCounted) m_application.eventLog.Append("Could not be counted: " + filed, EventKind::Warning);
  }
}

bool CFavorites::Read() {
  Assert(!text::Trim(AppPath).empty(), ".Read: App path is missing");
  m_wasRead = true;
  m_isWhole = false;
  bool isThere = true;
  ReportErrors(m_application, kStartingTheProgram, ClassName, "Read", [&] {
    isThere = FileExists(m_application.desktop.files, DataFile());
    if (isThere) ReadTable();
  });
  if (!isThere)
    RebuildFavorites();
  else if (m_isWhole)
    CountUnsaved();
  return isThere;
}

void CFavorites::ReadTable() {
  ClearTable();
  m_mustMoveAside = true;
  auto& files = m_application.desktop.files;
  const auto status = files.Status(DataFile());
  if (status && status->size > kLargestFile) throw Error(kInvalidFileFormat, "Too large to be read", DataFile());
  const std::string text = files.Read(DataFile(), kLargestFile).bytes;
  ReadRecords(text);
  m_mustMoveAside = false;
  m_isWhole = true;
}

void CFavorites::ReadRecords(const std::string& text) {
  ValueReader reader(text);
  try {
    while (!reader.AtEnd())
      for (Value& value : m_table.emplace_back()) value = reader.Next();
  } catch (const Error&) {
    // The report is the caller's; what was read goes on to be used, so the rest must be kept before anything is saved.
    m_isWhole = true;
    KeepDamagedFile(text);
    throw;
  }
}

void CFavorites::KeepDamagedFile(const std::string& text) {
  const std::string copy = NameForDamaged(DataFile());
  m_application.desktop.files.Replace(copy, text);
  m_mustMoveAside = false;
  m_application.eventLog.Append("Favorites.dat ends inside a record; a copy is kept as " + copy, EventKind::Warning);
}

/// A name beside the data file that nothing has yet: each damage is kept.
std::string CFavorites::NameForDamaged(const std::string& dataFile) const {
  const std::string folder = SplitPath(dataFile).folder;
  const std::string time = Format(m_application.Now(), "yyyy-mm-dd hh.nn.ss", {});
  const std::string name = folder + "\\Favorites.damaged " + time;
  std::string free = name + ".dat";
  for (int i = 2; m_application.desktop.files.Status(free); ++i) free = name + " " + std::to_string(i) + ".dat";
  return free;
}

void CFavorites::MoveUnreadableAside() {
  auto& files = m_application.desktop.files;
  const std::string kept = NameForDamaged(DataFile());
  if (FileExists(files, DataFile())) {
    files.Rename(DataFile(), kept);
    m_application.eventLog.Append("Favorites.dat could not be read; it is kept as " + kept, EventKind::Warning);
  }
  m_mustMoveAside = false;
}

void CFavorites::Save() {
  Assert(!text::Trim(AppPath).empty(), ".Save: App path is missing");
  if (Count() <= 0) return;
  if (!m_wasRead || !m_isWhole) {
    if (!std::exchange(m_toldUnsaved, true))
      m_application.eventLog.Append("Favorites.dat stays as it is: the favorites were not loaded", EventKind::Warning);
    return;
  }
  ReportErrors(m_application, kSavingSettings, ClassName, "Save", [this] {
    if (m_mustMoveAside) MoveUnreadableAside();
    Write();
  });
}

void CFavorites::Write() {
  std::string text;
  for (const Record& record : m_table) text += FormatRecord(record);
  m_application.desktop.files.Replace(DataFile(), text);
  if (m_unsaved.empty()) return;
  m_unsaved.clear();
  Journal().End();
}

}  // namespace dayvane
