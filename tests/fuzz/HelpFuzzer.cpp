// A help file: it is whole, or it is refused.

#include <string>

#include "base/Error.h"
#include "linux/help/HelpFile.h"
#include "tests/fuzz/Fuzzing.h"

namespace dayvane::fuzzing {

namespace {

using help::HelpFile;

QByteArray Record(const QByteArray& kind, const QByteArray& payload, const QByteArray& rest) {
  return kind + ' ' + QByteArray::number(payload.size()) + rest + '\n' + payload + '\n';
}

/// Topics and contents as a help file again, without the numbers of the topics' contexts.
QByteArray Written(const HelpFile& file) {
  QByteArray bytes = "Dayvane help 1\n";
  for (const help::Topic& topic : file.Topics())
    bytes += Record("topic", topic.title.toUtf8() + '\n' + topic.body.toUtf8(), ' ' + topic.name.toUtf8());
  QByteArrayList lines;
  for (const help::ContentsEntry& entry : file.Contents())
    lines.push_back(QByteArray(entry.depth, '\t') + entry.topic.toUtf8());
  return bytes + Record("contents", lines.join('\n'), {}) + "end\n";
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
    const HelpFile file = HelpFile::Parse(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
    CheckContents(file);
    Require(file.Search(QStringLiteral("a b")).size() <= file.Topics().size(), "no topic is found twice");
    Require(IsSame(HelpFile::Parse(Written(file)), file), "topics that are written are read back");
  } catch (const Error& error) {
    const bool isKnown = error.Number() == kInputPastEnd || error.Number() == kInvalidFileFormat;
    Require(isKnown, "what is no help file is refused as cut short or damaged");
  }
}

}  // namespace dayvane::fuzzing
