// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/Application.h"
#include "app/Date.h"
#include "platform/FileSystem.h"

namespace dayvane::search {

/// A document of the record: as it was last filed.
struct Document {
  std::string id;    ///< the filed link's path
  std::string name;  ///< as a person reads it, "Report.odt"
  Date day;
};

/// The names of everything in the record, kept for searching at every key that the user presses.
///
/// A name in several days stands for one document, that of the newest. The index is made of the folders' listings;
/// links are read only for what is found, to leave out those that lead to programs. It follows the record by the
/// moments at which the day folders changed, which tell of a poll, a purge, a removed link and the user's own hand
/// alike, and which are looked at when the program says that days changed and otherwise not at every key. What was
/// removed since that look is noticed when it is found.
class DocumentIndex {
 public:
  using Clock = std::function<std::chrono::steady_clock::time_point()>;

  /// The application must outlive this.
  DocumentIndex(Application& application, std::string dailyPath, Clock clock);

  /// The program has filed or removed something.
  void Outdate() { m_lastLook.reset(); }

  /// The documents whose names hold all the words, whatever their letter case; those of the newest day first. None
  /// without a word.
  std::vector<Document> Find(const std::vector<std::string>& words, std::size_t most);

  /// What an identifier stands for, which may come from anybody; nothing for one that is none of the record's.
  std::optional<Document> Describe(const std::string& id) const;

 private:
  struct Day {
    Date date;
    std::optional<std::int64_t> changed;  ///< nanoseconds; nothing where the next change could have the same moment
    std::vector<std::string> links;       ///< names
    bool isThere = false;
  };
  enum class Kind { Unknown, Document, Other };
  struct Name {
    std::string folded;
    std::string path;
    Date day;
    Kind kind = Kind::Unknown;
  };

  void Look();
  void LookThrough(const std::string& folder, int level);
  void LookAtDay(const std::string& folder);
  void NameAll();
  std::vector<Document> FindNow(const std::vector<std::string>& words, std::size_t most);
  bool IsDocument(Name& name);

  Application& m_application;
  std::string m_dailyPath;
  Clock m_clock;
  std::optional<std::chrono::steady_clock::time_point> m_lastLook;
  std::map<std::string, Day> m_days;  ///< by folder
  std::vector<Name> m_names;          ///< each once, those of the newest day first
  bool m_haveChanged = false;         ///< the days since they were named, as far as the look has come
};

}  // namespace dayvane::search
