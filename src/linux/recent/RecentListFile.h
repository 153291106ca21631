// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <sys/stat.h>

#include "linux/recent/RecentList.h"

namespace dayvane::recent {

/// "recently-used.xbel" in the user's data folder, where the desktop keeps it.
std::string DefaultListPath();

enum class ListCondition { Sound, Damaged, CutShort, Missing, Unreadable, TooLarge };

struct ListReading {
  ListCondition condition = ListCondition::Missing;
  RecentList list;  ///< what could be read of it
};

/// The file that keeps the desktop's list of recent documents. It is read, never written.
class RecentListFile {
 public:
  /// A list of more than `limit` bytes is not read. A real one of a thousand entries, the most that GTK keeps, has half
  /// a megabyte.
  explicit RecentListFile(std::string path, std::size_t limit = 32U << 20U);

  const std::string& Path() const { return m_path; }

  /// Whether it may hold something new. Costs one look at the file's status.
  bool IsDue() const { return m_isDue || CurrentVersion() != m_read; }

  bool IsThere() const { return CurrentVersion().has_value(); }

  ListReading Read();

 private:
  /// One version of the file. Inode numbers are soon used again, so the number alone is not enough.
  struct Version {
    explicit Version(const struct stat& status);
    friend bool operator==(const Version&, const Version&) = default;

    std::uint64_t inode;
    std::int64_t size;
    std::int64_t writtenSeconds;
    std::int64_t writtenNanoseconds;
  };

  std::optional<Version> CurrentVersion() const;
  ListCondition ReadBytes(std::string& bytes);

  std::string m_path;
  std::size_t m_limit;
  std::optional<Version> m_read;     ///< the version read last, empty when there was no file
  std::optional<Version> m_damaged;  ///< the version last found damaged
  bool m_isDue = true;               ///< even if its version is the one read last
};

}  // namespace dayvane::recent
