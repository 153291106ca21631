#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

#include "app/Application.h"
#include "capture/CShortcut.h"
#include "views/DocumentListView.h"
#include "views/FavoritesTable.h"

namespace dayvane {

/// Keeps one record for every document ever filed: how often, and when last. The records live in memory and in the
/// data file "Favorites.dat" (views/FavoritesFile.h has its form). Documents filed often enough are the Favorites list,
/// whose behaviour is also this class's.
class CFavorites : public DocumentListView {
 public:
  static constexpr const char* ClassName = "CFavorites";

  explicit CFavorites(Application& application) : DocumentListView(application, ClassName) {}

  // Set by the owner before use.
  std::string AppPath;      ///< folder of the data file, without a trailing "\"
  std::string DailyFolder;  ///< name of the repository folder in it

  std::int32_t Count() const { return static_cast<std::int32_t>(m_table.size()); }
  favorites::Table GetFavorites() const { return m_table; }

  /// Counts one filing of a document: one more day of its record, or a new record. The identity of a record is its
  /// folder and file name, without regard to case; the first match wins. Fails with kTypeMismatch when a damaged
  /// record's count is no number.
  void ProcessShortcut(const CShortcut* shortcut);

  /// Loads the data file; without one the table is rebuilt from the repository. Returns whether there was a file.
  /// A file that ends inside a record is an error that is reported: what was read is kept, and a copy of the file
  /// stays beside it, because the next save writes over it.
  bool Read();

  /// Writes the data file as a whole. An empty table leaves it as it is.
  void Save();

  /// Builds the table anew from the repository: every day folder that holds a document's shortcut counts one.
  void RebuildFavorites();

  // The list.

  /// Removes an item from the list alone. Returns whether it was there.
  bool RemoveDocument(const std::string& key);

  /// Sizes the pane, in twips; the list fills it.
  void SetSize(int width, int height);

  /// Puts the list in the order of the last column click, or of the settings.
  void SortAgain();

  void CreateRegistryKeys();
  void RestoreSettings();
  void SaveSettings() const;

 private:
  std::string DataFile() const;
  void ReadRecords(const std::string& text);
  void KeepDamagedFile(const std::string& text) const;
  void ClearTable();
  std::optional<std::size_t> Find(const std::string& targetFile);
  void Append(const CShortcut& shortcut);
  void Container_Resize() override;
  void m_oDirectoryWalker_ItemFound(CShortcut& shortcut, const std::string& path, const std::string& fileName);

  favorites::Table m_table;

  /// Record by upper-cased identity, of the first m_indexed records: finds the first match without a scan.
  std::unordered_map<std::string, std::size_t> m_index;
  std::size_t m_indexed = 0;
};

}  // namespace dayvane
