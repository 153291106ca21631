// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>

struct sqlite3;

namespace dayvane::testing {

/// KDE's activity database as its daemon keeps it: open for writing, with the newest rows in the write-ahead log.
class ActivityDatabase {
 public:
  explicit ActivityDatabase(const std::string& nativePath);

  /// A row of an opening; without an end, the document is still open.
  void Add(const std::string& agent, const std::string& resource, std::int64_t start);
  void Add(const std::string& agent, const std::string& resource, std::int64_t start, std::int64_t end);

  void SetType(const std::string& resource, const std::string& mimeType);

  void Run(const std::string& sql);

  /// The daemon ends: what was in the log goes to the database.
  void Close() { m_connection.reset(); }

 private:
  std::unique_ptr<sqlite3, int (*)(sqlite3*)> m_connection;
};

}  // namespace dayvane::testing
