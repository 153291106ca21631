// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/FileSystem.h"

namespace dayvane::favorites {

/// What is counted since the data file was last saved, on the disk before it is filed: whenever a kill comes, the next
/// start finds which filed shortcuts the data file does not count yet.
///
/// The file lies beside the data file: UTF-8, lines that end with a line feed,
///
///     dayvane-pending 1 IDENTITY
///     LENGTH PATH                    of a filed shortcut; the length in bytes tells a line that was cut short
///
/// Lines say something about one version of the data file only, whose IDENTITY the title above them bears: as soon as
/// that has been saved anew or replaced, all that they name is counted, or named once more below another title, or
/// means nothing. Lines are added one by one and need not reach the disk at once: a kill loses nothing that was
/// written.
class FavoritesJournal {
 public:
  /// The file need not exist.
  FavoritesJournal(platform::FileSystem& files, std::string path) : m_files(files), m_path(std::move(path)) {}

  /// The shortcuts that an earlier session was about to count on top of this version of the data file, each once.
  /// Empty where there is no such file; fails when it cannot be read.
  std::vector<std::string> Read(const std::string& identity) const;

  /// From here on for this version of the data file, DataIdentity of what is or will be on the disk.
  void Begin(const std::string& identity, const std::vector<std::string>& shortcutFiles) const;
  void Add(const std::string& shortcutFile) const;

  /// Everything is saved. A file that cannot be deleted does no harm: its identity is no longer that of the data file.
  void End() const;

 private:
  platform::FileSystem& m_files;
  std::string m_path;
};

/// Tells one version of the data file from another: length and FNV-1a hash of its bytes, "none" without a file.
std::string DataIdentity(const std::optional<std::string>& bytes);

}  // namespace dayvane::favorites
