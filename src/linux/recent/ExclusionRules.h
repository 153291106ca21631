// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "linux/recent/Source.h"

namespace dayvane::recent {

/// What the user does not want on record, as patterns. Their text has one a line; blank lines and those that begin with
/// "#" say nothing.
///
///     ~/Private           a path: that document, or everything in that folder; "~" is the home folder
///     *.iso               a name, having no "/": that of a document or of a folder, wherever it lies
///     type:image/*        a type: the document's, or what the system takes it for by its name
///     program:firefox     the program that opened it, by its name or the last part of its id, in any letter case
///
/// Patterns are those of the shell. "*" stands for any characters, be they "/" or a leading dot: who hides a folder
/// rather expects too much to be hidden than too little.
class ExclusionRules {
 public:
  struct BadLine {
    std::size_t number = 0;  ///< counted from 1
    std::string complaint;
  };

  /// No rules.
  ExclusionRules() = default;

  /// `homes` are the native paths that "~" stands for. More than one where the home folder has several names.
  ExclusionRules(std::string_view text, const std::vector<std::string>& homes);

  bool Cover(const Opening& opening) const;

  const std::vector<BadLine>& BadLines() const { return m_badLines; }

 private:
  /// What is wrong with the line; empty when nothing is.
  std::string AddLine(std::string_view line, const std::vector<std::string>& homes);
  std::string AddPath(std::string_view pattern, const std::vector<std::string>& homes);

  bool CoverPath(const std::string& path) const;
  bool CoverType(const Opening& opening) const;
  bool CoverProgram(const std::string& program) const;

  std::vector<std::string> m_paths;
  std::vector<std::string> m_names;
  std::vector<std::string> m_types;     ///< lower case
  std::vector<std::string> m_programs;  ///< lower case
  std::vector<BadLine> m_badLines;
};

}  // namespace dayvane::recent
