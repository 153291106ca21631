// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "linux/recent/FileVersion.h"
#include "linux/recent/Source.h"

namespace dayvane::recent {

/// "kactivitymanagerd/resources/database" in the user's data folder.
std::string DefaultActivityDatabase();

/// What KDE's activity manager records of its programs: an SQLite database to which it adds a row (see ResourceEvent)
/// as soon as a program opens a document. It is there from the first KDE program on.
///
/// The memory is "ROW START HASH", the last row that was read and what identifies it: the numbers of deleted rows are
/// given again when the user has a part of the history deleted. Then all counts that is not older than that row.
/// The first reading tells of each document's latest opening alone, as a list of recent documents does.
class KdeActivities : public Source {
 public:
  struct Limits {
    std::size_t rows = 100'000;  ///< of one reading; the rest is due at once
    std::size_t uses = 20'000;   ///< the last rows, among which the beginning of a use is looked for
  };

  explicit KdeActivities(std::string nativePath) : KdeActivities(std::move(nativePath), Limits()) {}
  KdeActivities(std::string nativePath, Limits limits);

  const std::string& Name() const override { return m_name; }
  bool IsDue() override;
  Reading Read(const std::string& memory) override;

  /// Takes 3 ms where there are as many rows as are looked at.
  std::optional<Moment> BeganAt(const Opening& use) override;

 private:
  /// Of the database and of the log beside it, in which the newest rows are.
  struct Version {
    FileVersion database;
    std::optional<FileVersion> log;  ///< without one, and while it is empty, nothing

    friend bool operator==(const Version&, const Version&) = default;
  };

  std::optional<Version> CurrentVersion() const;

  std::string m_path;
  Limits m_limits;
  std::string m_name = "KDE's record of activities";
  std::optional<Version> m_read;  ///< the version that was read to its last row
};

}  // namespace dayvane::recent
