// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "app/Application.h"
#include "capture/CShortcut.h"
#include "views/DocumentListView.h"
#include "views/FavoritesJournal.h"
#include "views/FavoritesTable.h"

namespace dayvane {

/// Keeps one record for every document ever filed: how often, and when last. The records live in memory and in the
/// data file "Favorites.dat" (views/FavoritesFile.h has its form). Documents filed often enough are the Favorites list,
/// which this class looks after too.
class CFavorites : public DocumentListView {
 public:
  static constexpr const char* ClassName = "CFavorites";

  explicit CFavorites(Application& application)
      : DocumentListView(application, ClassName, "Favorites",
                         {"Name", "Type", "Path", "Days Accessed", "Last Accessed"}) {}

  // Set by the owner before use.
  std::string AppPath;      ///< folder of the data file, without a trailing "\"
  std::string DailyFolder;  ///< name of the repository folder in it

  std::int32_t Count() const { return static_cast<std::int32_t>(m_table.size()); }
  favorites::Table GetFavorites() const { return m_table; }

  /// Counts one filing of a document: one more day of its record, or a new record. The identity of a record is its
  /// folder and file name, without regard to case; the first match wins. Fails with kTypeMismatch when a damaged
  /// record's count is not a number.
  void ProcessShortcut(const CShortcut* shortcut);

  /// Before the first capture of a start: counts what an earlier session filed and was cut off from counting, and saves
  /// that, so that the data file is as if nothing had been cut off. Where that fails, Read does it.
  void CountWhatWasCutOff();

  /// A shortcut is filed next and counted after that: put on the disk first, so that a kill in between costs no count.
  void WillCount(const std::string& shortcutFile);

  /// Counts what was filed and could not be counted then, because it could not be read for a moment.
  void CountLate();

  /// Whether anything was counted since the table was last saved.
  bool HasUnsavedCounts() const { return !m_unsaved.empty(); }

  /// Loads the data file, and counts what was filed since and is not counted in it; without a file the table is rebuilt
  /// from the repository. Returns whether there was a file. A file that ends inside a record is an error that is
  /// reported: what was read is kept, and a copy of the file stays beside it, because the next save writes over it. A
  /// file that cannot be read at all is reported too, and leaves the table empty.
  bool Read();

  /// Writes the data file as a whole. An empty table leaves it as it is, and so does one that was neither loaded nor
  /// rebuilt to its end: the file on the disk knows more. One that could not be read is moved aside first.
  void Save();

  /// Builds the table anew from the repository: every day folder that holds a document's shortcut counts one.
  void RebuildFavorites();

  /// The table holds everything that the data file or the repository has.
  bool IsWhole() const { return m_isWhole; }

  // The list.

  /// Removes an item from the list alone. Returns whether it was there.
  bool RemoveDocument(const std::string& key);

  /// Sizes the pane, in twips; the list fills it.
  void SetSize(int width, int height);

  /// Puts the list in the order of the last column click, or of the settings.
  void SortAgain() { SortByColumn(List("SortAgain"), m_sortColumn, m_sortOrder); }

  void RestoreSettings();
  void SaveSettings() const { SaveColumns({m_sortColumn, m_sortOrder}); }

 private:
  std::string DataFile() const;
  std::string NameForDamaged(const std::string& dataFile) const;
  std::string VersionOnDisk() const;
  std::string ReadDataFile() const;
  favorites::FavoritesJournal Journal() const;
  void ReadTable();
  void ReadRecords(const std::string& text);
  void KeepDamagedFile(const std::string& text);
  void MoveUnreadableAside();
  void FindUncounted();
  void CountUncounted();
  void CountOne(const CShortcut& shortcut);
  void CountInTable(const CShortcut& shortcut);
  void Write();
  void ClearTable();
  std::optional<std::size_t> Find(const std::string& targetFile);
  void Append(const CShortcut& shortcut);
  void Container_Resize() override;
  void m_oDirectoryWalker_ItemFound(CShortcut& shortcut, const std::string& path, const std::string& fileName);

  favorites::Table m_table;
  bool m_isWhole = false;
  bool m_wasRead = false;        ///< before that nothing is saved: the file on the disk knows more
  bool m_mustMoveAside = false;  ///< the data file is damaged, and no copy of it is kept yet
  bool m_toldUnsaved = false;    ///< the event log knows that the table cannot be saved
  bool m_isSettled = false;      ///< what an earlier session did not count is known

  // Filed shortcuts, as the journal has them.
  std::vector<std::string> m_uncounted;
  std::vector<std::string> m_unsaved;  ///< counted in the table and not on the disk
  bool m_isJournalOpen = false;        ///< its last lines belong to the data file that is on the disk

  /// Record by upper-cased identity, of the first m_indexed records: finds the first match without a scan.
  std::unordered_map<std::string, std::size_t> m_index;
  std::size_t m_indexed = 0;
};

}  // namespace dayvane
