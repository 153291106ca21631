// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace dayvane::recent {

/// Another program's SQLite database, as it is at the moment of the first query, however the program goes on writing.
/// What is still in its write-ahead log is read too, so the database must not be opened as "immutable".
///
/// Nothing here waits longer than a few milliseconds, and a database made to keep its reader busy is given up. Every
/// failure, a busy database among them, is an Error. A database without a log may need the right to make one: SQLite
/// keeps a file of locks beside it.
class ReadOnlyDatabase {
 public:
  class Query {
   public:
    Query& Bind(int place, std::int64_t number);  ///< places count from 1
    Query& Bind(int place, std::string_view text);

    bool Next();  ///< whether there is another row
    void Reset();

    /// Columns count from 0. Nothing for a column that holds no integer.
    std::optional<std::int64_t> Number(int column) const;

    /// As it was stored, byte for byte; empty for a column that holds no text.
    std::string Text(int column) const;

   private:
    friend class ReadOnlyDatabase;
    Query(const ReadOnlyDatabase& database, const char* sql);

    const ReadOnlyDatabase& m_database;
    std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> m_statement;
  };

  explicit ReadOnlyDatabase(std::string nativePath);
  ReadOnlyDatabase(const ReadOnlyDatabase&) = delete;
  ReadOnlyDatabase& operator=(const ReadOnlyDatabase&) = delete;

  Query Ask(const char* sql) const { return {*this, sql}; }
  bool HasTable(std::string_view name) const;

 private:
  static int CountStep(void* database);

  void Check(int result) const;
  void Configure();

  std::string m_path;
  std::unique_ptr<sqlite3, int (*)(sqlite3*)> m_connection;
  int m_steps = 0;  ///< in thousands
};

}  // namespace dayvane::recent
