// SPDX-License-Identifier: MIT

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

/// More than two million documents; anything larger was not written by this program.
constexpr std::size_t kLargestFile = std::size_t{512} << 20;

/// A disk that fails for a moment must cost no count.
constexpr int kAttempts = 5;

}  // namespace

std::string CFavorites::DataFile() const {
  // The user may keep the file elsewhere and have a link here.
  return m_application.desktop.files.Resolve(AppPath + "\\" + "Favorites.dat");
}

FavoritesJournal CFavorites::Journal() const {
  return {m_application.desktop.files, AppPath + "\\" + "Favorites.pending"};
}

std::string CFavorites::VersionOnDisk() const {
  std::optional<std::string> bytes;
  if (FileExists(m_application.desktop.files, DataFile())) bytes = ReadDataFile();
  return DataIdentity(bytes);
}

std::string CFavorites::ReadDataFile() const {
  for (int attempt = 1;; ++attempt) {
    try {
      return m_application.desktop.files.Read(DataFile(), kLargestFile).bytes;
    } catch (const Error&) {
      if (attempt == kAttempts) throw;
    }
  }
}

void CFavorites::CountWhatWasCutOff() {
  m_isSettled = IgnoreErrors([this] {
    FindUncounted();
    if (m_uncounted.empty()) return Journal().End();
    // At once and not when the table is loaded: a purge may take away what was filed before that.
    ReadTable();
    CountLate();
    Write();
  });
  if (!m_isSettled)
    m_application.eventLog.Append("What an earlier session filed last could not be counted yet", EventKind::Warning);
  ClearTable();
}

void CFavorites::FindUncounted() {
  // Without a data file all is counted by the rebuild.
  if (!FileExists(m_application.desktop.files, DataFile())) return;
  const std::string version = VersionOnDisk();
  for (int attempt = 1; attempt <= kAttempts; ++attempt)
    if (IgnoreErrors([&] { m_uncounted = Journal().Read(version); })) return;
  // No failure: it must not stand in the way of a new one.
  m_application.eventLog.Append("Favorites.pending cannot be read", EventKind::Warning);
}

void CFavorites::WillCount(const std::string& shortcutFile) {
  if (std::exchange(m_isJournalOpen, false)) {
    Journal().Add(shortcutFile);
  } else {
    std::string version = "unreadable";
    IgnoreErrors([&] { version = VersionOnDisk(); });
    Journal().Begin(version, {shortcutFile});
  }
  m_isJournalOpen = true;
  m_uncounted.push_back(shortcutFile);
}

void CFavorites::CountLate() {
  CShortcut shortcut(m_application);
  for (std::string& filed : std::exchange(m_uncounted, {})) {
    bool isThere = true;
    const bool isKnown = IgnoreErrors([&] {
      isThere = FileExists(m_application.desktop.files, filed);
      if (isThere) shortcut.SetFile(filed);
    });
    if (!isKnown)
      m_uncounted.push_back(std::move(filed));
    else if (isThere)  // if not, its filing failed: it will be filed, and counted then
      CountOne(shortcut);
  }
}

void CFavorites::CountOne(const CShortcut& shortcut) {
  // One record with a damaged count must not keep the others from being counted.
  if (!IgnoreErrors([&] { ProcessShortcut(&shortcut); }))
    m_application.eventLog.Append("Could not be counted: " + shortcut.File(), EventKind::Warning);
  m_unsaved.push_back(shortcut.File());
}

bool CFavorites::Read() {
  Assert(!text::Trim(AppPath).empty(), ".Read: App path is missing");
  m_wasRead = true;
  m_isWhole = false;
  bool isThere = true;
  ReportErrors(m_application, kStartingTheProgram, ClassName, "Read", [&] {
    m_mustMoveAside = true;
    isThere = FileExists(m_application.desktop.files, DataFile());
    if (isThere) ReadTable();
  });
  if (!isThere)
    RebuildFavorites();
  else if (m_isWhole)
    CountUncounted();
  return isThere;
}

void CFavorites::CountUncounted() {
  if (!m_isSettled) m_isSettled = IgnoreErrors([this] { FindUncounted(); });
  CountLate();
  for (const std::string& filed : m_uncounted)
    m_application.eventLog.Append("Could not be counted yet: " + filed, EventKind::Warning);
}

void CFavorites::ReadTable() {
  ClearTable();
  m_uncounted.insert(m_uncounted.end(), m_unsaved.begin(), m_unsaved.end());
  m_unsaved.clear();
  m_mustMoveAside = true;
  const auto status = m_application.desktop.files.Status(DataFile());
  if (status && status->size > kLargestFile) throw Error(kInvalidFileFormat, "Too large to be read", DataFile());
  ReadRecords(ReadDataFile());
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
  // Before the data file that does not count them, so that no kill comes in between.
  m_isJournalOpen = false;
  if (!m_uncounted.empty()) Journal().Begin(DataIdentity(text), m_uncounted);
  m_application.desktop.files.Replace(DataFile(), text);
  m_isJournalOpen = !m_uncounted.empty();
  if (!m_unsaved.empty() && m_uncounted.empty()) Journal().End();
  m_unsaved.clear();
}

}  // namespace dayvane
