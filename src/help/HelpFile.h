// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/FileSystem.h"

namespace dayvane::help {

/// One page of help, UTF-8. The body is well-formed markup of the small set that scripts/compile_help.py allows.
struct Topic {
  std::string name;  ///< what links say: "day-tree"
  std::string title;
  std::string body;
  std::string text;  ///< the body without markup, for searching
};

/// One line of the table of contents, in order from top to bottom.
struct ContentsEntry {
  int depth = 0;  ///< 0 is the outermost level; never more than one deeper than the entry before it
  std::string topic;
};

/// A help file, read whole: topics by name and by the context ids that the program asks for, pictures, contents.
///
/// The format, version 1: the line "Dayvane help 1", then records, then the line "end" and nothing more. A record is a
/// header line, exactly as many bytes as the header says, and a line feed. Lines end with a line feed alone.
///
///     topic <bytes> <name> <context id>…     the title in the first line, the body in the rest; UTF-8
///     picture <bytes> <name>                 a file, its kind told by the name's ending: .svg, .png
///     contents <bytes>                       a line per entry: a tab for each level, then the topic's name
///
/// Records of another kind are skipped, so that a later version can add some. A size beyond the end of the file, a name
/// or context id given twice, contents that are missing or name no topic, text that is not UTF-8, and a file without
/// its last line are damage: half a help file would show as a help with holes, so nothing of it is used.
class HelpFile {
 public:
  /// An empty help file: no topic, no contents.
  HelpFile() = default;

  /// Fails with kFileNotFound or kPathFileAccess, or as Parse does.
  static HelpFile Read(platform::FileSystem& files, const std::string& path);

  /// Fails with kInputPastEnd where the bytes end too early, kInvalidFileFormat for any other damage.
  static HelpFile Parse(std::string_view bytes);

  const std::vector<Topic>& Topics() const { return m_topics; }
  const std::vector<ContentsEntry>& Contents() const { return m_contents; }  ///< at least one, once read
  const Topic* Find(const std::string& name) const;                          ///< nullptr when there is none
  const Topic* FindContext(int contextId) const;
  std::string_view Picture(const std::string& name) const;  ///< empty when there is none

  /// Topics that hold every word, wherever in a longer word; those with a word in the title come first.
  std::vector<const Topic*> Search(std::string_view words) const;

 private:
  friend class HelpFileReader;

  std::vector<Topic> m_topics;
  std::vector<ContentsEntry> m_contents;
  std::unordered_map<std::string, std::size_t> m_names;
  std::unordered_map<int, std::size_t> m_contexts;
  std::unordered_map<std::string, std::string> m_pictures;
};

}  // namespace dayvane::help
