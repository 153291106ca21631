// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "base/ReportEvent.h"
#include "linux/registry/SettingsText.h"
#include "platform/FileSystem.h"

namespace dayvane::registry {

/// The user's settings in one text file (form: SettingsText.h), which is replaced whole each time a value changes, or
/// once for all that change while writes are held.
///
/// The file is the only truth: it is read again whenever it has changed on the disk, so that a value that its user
/// edits or removes by hand while the program runs is seen, and kept when another one is written.
class SettingsFile {
 public:
  /// The file and its folders need not exist: the first value written makes them. A file that cannot be read whole is
  /// reported, counts as empty, and is kept under another name (".damaged" added) before it is first replaced.
  SettingsFile(std::string nativePath, ReportEvent reportEvent);

  /// A key exists when it or one below it has a value, or when it was added in this run: a key reaches the disk with
  /// its first value, so that a kill in between leaves no half-made key behind.
  bool HasKey(std::string_view path);
  void AddKey(std::string_view path) { m_addedKeys.emplace(path); }

  std::optional<std::string> Value(std::string_view path, std::string_view name);

  /// On the disk when it returns, unless writes are held. Fails when the file cannot be replaced, which leaves the old
  /// one as it was.
  void SetValue(std::string_view path, std::string_view name, const std::string& text) { Hold(path, name, text, true); }

  /// The same for a value that has its default: where that cannot be stored it is reported once and the value holds for
  /// this run, until the file has one or the next write succeeds. A default is nothing that a user could lose.
  void AddValue(std::string_view path, std::string_view name, const std::string& text) {
    Hold(path, name, text, false);
  }

  /// Holds writes until StoreWrites was called as often; the last one replaces the file if a value did change. When
  /// that fails the values are those of the file again.
  void HoldWrites() { ++m_holders; }
  void StoreWrites() {
    if (--m_holders == 0) Store();
  }

 private:
  std::string FilePath() const;
  void Refresh();
  void Read(const std::string& path);
  void KeepDamagedFile(const std::string& path);
  void Hold(std::string_view path, std::string_view name, const std::string& text, bool mustReachDisk);
  void Store();
  void Replace(const SettingsKeys& changes);
  void KeepForThisRun(const SettingsKeys& added, const std::string& reason);

  std::string m_nativePath;
  ReportEvent m_reportEvent;
  std::string m_text;  ///< of the file, empty when it is damaged
  SettingsKeys m_keys;
  SettingsKeys m_changes;        ///< held, not yet on the disk
  bool m_mustReachDisk = false;  ///< there are others than defaults among the held ones
  SettingsKeys m_thisRuns;       ///< defaults that the disk did not take
  bool m_reportedUnstored = false;
  int m_holders = 0;
  std::set<std::string, IgnoringCase> m_addedKeys;
  std::optional<platform::FileStatus> m_version;  ///< of the file that `m_keys` came from; empty without a file
  bool m_damaged = false;
};

}  // namespace dayvane::registry
