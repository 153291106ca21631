// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>

#include "linux/recent/Source.h"

namespace dayvane::recent {

/// Which program last opened a document of a content type.
struct LastProgram {
  Moment moment = 0;
  std::string program;  ///< as the source named it

  friend bool operator==(const LastProgram&, const LastProgram&) = default;
};

class LastPrograms {
 public:
  using Types = std::map<std::string, LastProgram>;

  /// Notes a new opening. Its type is that of the document's name, as everywhere in the program, and only for a name of
  /// no known type the one that the source tells.
  void Note(const Opening& opening);

  /// False when the type is known already.
  bool Add(const std::string& type, const LastProgram& last) { return m_types.emplace(type, last).second; }

  std::optional<std::string> Find(const std::string& type) const;
  const Types& All() const { return m_types; }

  friend bool operator==(const LastPrograms&, const LastPrograms&) = default;

 private:
  Types m_types;
};

}  // namespace dayvane::recent
