// SPDX-License-Identifier: MIT
#include "linux/recent/ReadOnlyDatabase.h"

#include <sqlite3.h>
#include <utility>

#include "base/Error.h"

namespace dayvane::recent {

namespace {

constexpr int kBusyMilliseconds = 5;
constexpr int kLongestText = 64 << 20;  ///< bytes
constexpr int kStepsBetweenCounts = 1000;
constexpr int kMostCounts = 20'000;  ///< about a second; reading 100,000 rows takes 2,000

int ErrorNumberOf(int result) {
  switch (result & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return kPermissionDenied;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_READONLY:
      return kPathFileAccess;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_ERROR:
      return kInvalidFileFormat;
    default:
      return kDeviceIoError;
  }
}

}  // namespace

ReadOnlyDatabase::ReadOnlyDatabase(std::string nativePath)
    : m_path(std::move(nativePath)), m_connection(nullptr, &sqlite3_close) {
  sqlite3* connection = nullptr;
  const int result = sqlite3_open_v2(m_path.c_str(), &connection, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
  m_connection.reset(connection);  // even a failed attempt leaves one
  Check(result);
  Configure();
}

/// The database is another program's, so its schema is not trusted either: a view may stand in a table's place.
void ReadOnlyDatabase::Configure() {
  sqlite3* connection = m_connection.get();
  sqlite3_busy_timeout(connection, kBusyMilliseconds);
  sqlite3_limit(connection, SQLITE_LIMIT_LENGTH, kLongestText);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
  sqlite3_progress_handler(connection, kStepsBetweenCounts, &CountStep, this);
  // All queries see one state of the database.
  Check(sqlite3_exec(connection, "BEGIN", nullptr, nullptr, nullptr));
}

int ReadOnlyDatabase::CountStep(void* database) {
  return ++static_cast<ReadOnlyDatabase*>(database)->m_steps > kMostCounts ? 1 : 0;
}

void ReadOnlyDatabase::Check(int result) const {
  if (result == SQLITE_OK || result == SQLITE_ROW || result == SQLITE_DONE) return;
  // SQLite's words for this one failure would quote the schema, which may hold anything.
  throw Error(ErrorNumberOf(result), "The database cannot be read (" + std::string(sqlite3_errstr(result)) + ")",
              m_path);
}

bool ReadOnlyDatabase::HasTable(std::string_view name) const {
  Query query = Ask("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?");
  return query.Bind(1, name).Next();
}

ReadOnlyDatabase::Query::Query(const ReadOnlyDatabase& database, const char* sql)
    : m_database(database), m_statement(nullptr, &sqlite3_finalize) {
  sqlite3_stmt* statement = nullptr;
  const int result = sqlite3_prepare_v2(database.m_connection.get(), sql, -1, &statement, nullptr);
  m_statement.reset(statement);
  database.Check(result);
}

ReadOnlyDatabase::Query& ReadOnlyDatabase::Query::Bind(int place, std::int64_t number) {
  m_database.Check(sqlite3_bind_int64(m_statement.get(), place, number));
  return *this;
}

ReadOnlyDatabase::Query& ReadOnlyDatabase::Query::Bind(int place, std::string_view text) {
  m_database.Check(
      sqlite3_bind_text64(m_statement.get(), place, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
  return *this;
}

bool ReadOnlyDatabase::Query::Next() {
  const int result = sqlite3_step(m_statement.get());
  m_database.Check(result);
  return result == SQLITE_ROW;
}

void ReadOnlyDatabase::Query::Reset() {
  m_database.Check(sqlite3_reset(m_statement.get()));
}

std::optional<std::int64_t> ReadOnlyDatabase::Query::Number(int column) const {
  if (sqlite3_column_type(m_statement.get(), column) != SQLITE_INTEGER) return std::nullopt;
  return sqlite3_column_int64(m_statement.get(), column);
}

std::string ReadOnlyDatabase::Query::Text(int column) const {
  if (sqlite3_column_type(m_statement.get(), column) != SQLITE_TEXT) return {};
  const unsigned char* text = sqlite3_column_text(m_statement.get(), column);
  if (text == nullptr) m_database.Check(SQLITE_NOMEM);
  return {reinterpret_cast<const char*>(text),
          static_cast<std::size_t>(sqlite3_column_bytes(m_statement.get(), column))};
}

}  // namespace dayvane::recent
