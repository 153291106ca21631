// SPDX-License-Identifier: MIT
#include "tests/linux/recent/ActivityDatabase.h"

#include <filesystem>
#include <sqlite3.h>
#include <stdexcept>

namespace dayvane::testing {

namespace {

std::string Quoted(const std::string& text) {
  std::string quoted = "'";
  for (const char c : text) quoted += c == '\'' ? std::string("''") : std::string(1, c);
  return quoted + "'";
}

}  // namespace

ActivityDatabase::ActivityDatabase(const std::string& nativePath) : m_connection(nullptr, &sqlite3_close) {
  std::filesystem::create_directories(std::filesystem::path(nativePath).parent_path());
  sqlite3* connection = nullptr;
  const int result = sqlite3_open(nativePath.c_str(), &connection);
  m_connection.reset(connection);
  if (result != SQLITE_OK) throw std::runtime_error("no database: " + nativePath);
  Run("PRAGMA journal_mode = WAL");
  Run("CREATE TABLE IF NOT EXISTS SchemaInfo (key text PRIMARY KEY, value text)");
  Run("INSERT OR REPLACE INTO SchemaInfo VALUES ('version', '2015.02.09')");
  Run("CREATE TABLE IF NOT EXISTS ResourceEvent (usedActivity TEXT, initiatingAgent TEXT, targettedResource TEXT, "
      "start INTEGER, end INTEGER)");
  Run("CREATE TABLE IF NOT EXISTS ResourceInfo (targettedResource TEXT, title TEXT, mimetype TEXT, autoTitle INTEGER, "
      "autoMimetype INTEGER, PRIMARY KEY(targettedResource))");
}

void ActivityDatabase::Add(const std::string& agent, const std::string& resource, std::int64_t start) {
  Run("INSERT INTO ResourceEvent VALUES ('home', " + Quoted(agent) + ", " + Quoted(resource) + ", " +
      std::to_string(start) + ", NULL)");
}

void ActivityDatabase::Add(const std::string& agent, const std::string& resource, std::int64_t start,
                           std::int64_t end) {
  Run("INSERT INTO ResourceEvent VALUES ('home', " + Quoted(agent) + ", " + Quoted(resource) + ", " +
      std::to_string(start) + ", " + std::to_string(end) + ")");
}

void ActivityDatabase::SetType(const std::string& resource, const std::string& mimeType) {
  Run("INSERT OR REPLACE INTO ResourceInfo VALUES (" + Quoted(resource) + ", '', " + Quoted(mimeType) + ", 1, 1)");
}

void ActivityDatabase::Run(const std::string& sql) {
  char* message = nullptr;
  sqlite3_exec(m_connection.get(), sql.c_str(), nullptr, nullptr, &message);
  const std::string complaint = message != nullptr ? message : "";
  sqlite3_free(message);
  if (!complaint.empty()) throw std::runtime_error(complaint + ": " + sql);
}

}  // namespace dayvane::testing
