// SPDX-License-Identifier: MIT

// A help file: it is whole, or it is refused.

#include <algorithm>
#include <string>

#include "base/Error.h"
#include "help/HelpFile.h"
#include "tests/fuzz/Fuzzing.h"

namespace dayvane::fuzzing {

namespace {

using help::HelpFile;

std::string Record(const std::string& kind, const std::string& payload, const std::string& rest) {
  return kind + ' ' + std::to_string(payload.size()) + rest + '\n' + payload + '\n';
}

/// Topics and contents as a help file again, without the numbers of the topics' contexts.
std::string Written(const HelpFile& file) {
  std::string bytes = "Dayvane help 1\n";
  for (const help::Topic& topic : file.Topics())
    bytes += Record("topic", topic.title + '\n' + topic.body, ' ' + topic.name);
  std::string lines;
  for (const help::ContentsEntry& entry : file.Contents())
    lines += (lines.empty() ? "" : "\n") + std::string(static_cast<std::size_t>(entry.depth), '\t') + entry.topic;
  return bytes + Record("contents", lines, {}) + "end\n";
}

bool IsSame(const HelpFile& a, const HelpFile& b) {
  const auto sameTopic = [](const help::Topic& one, const help::Topic& other) {
    return one.name == other.name && one.title == other.title && one.body == other.body && one.text == other.text;
  };
  const auto sameEntry = [](const help::ContentsEntry& one, const help::ContentsEntry& other) {
    return one.depth == other.depth && one.topic == other.topic;
  };
  return std::ranges::equal(a.Topics(), b.Topics(), sameTopic) &&
         std::ranges::equal(a.Contents(), b.Contents(), sameEntry);
}

void CheckContents(const HelpFile& file) {
  int depth = -1;
  for (const help::ContentsEntry& entry : file.Contents()) {
    Require(entry.depth >= 0 && entry.depth <= depth + 1, "no line of the contents skips a level");
    Require(file.Find(entry.topic) != nullptr, "every line of the contents has its topic");
    depth = entry.depth;
  }
  Require(depth >= 0, "a help file has contents");
}

}  // namespace

void Try(std::string_view bytes) {
  try {
    const HelpFile file = HelpFile::Parse(bytes);
    CheckContents(file);
    Require(file.Search("a b").size() <= file.Topics().size(), "no topic is found twice");
    Require(IsSame(HelpFile::Parse(Written(file)), file), "topics that are written are read back");
  } catch (const Error& error) {
    const bool isKnown = error.Number() == kInputPastEnd || error.Number() == kInvalidFileFormat;
    Require(isKnown, "what is no help file is refused as cut short or damaged");
  }
}

}  // namespace dayvane::fuzzing
