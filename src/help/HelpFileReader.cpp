// SPDX-License-Identifier: MIT
#include "help/HelpFileReader.h"

#include <algorithm>
#include <utility>

#include "base/Error.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "help/PlainText.h"

namespace dayvane::help {

namespace {

constexpr std::size_t kLongestLine = 1000;  ///< a header is a few words
constexpr int kLargestContext = 65535;

[[noreturn]] void FailDamaged(const char* what) {
  throw Error(kInvalidFileFormat, std::string("The help file is damaged: ") + what + ".");
}

[[noreturn]] void FailCutShort() {
  throw Error(kInputPastEnd, "The help file is incomplete.");
}

std::string Utf8(std::string_view bytes) {
  if (!utf8::IsValid(bytes)) FailDamaged("a text is not UTF-8");
  return std::string(bytes);
}

}  // namespace

HelpFile HelpFileReader::Read() {
  if (TakeLine() != "Dayvane help 1") FailDamaged("it does not begin as a help file");
  for (std::string_view line = TakeLine(); line != "end"; line = TakeLine()) {
    const Header header = text::Split(line, ' ');
    if (header.size() < 2) FailDamaged("a record has no size");
    if (header[0] == "topic") {
      TakeTopic(header);
    } else if (header[0] == "picture") {
      TakePicture(header);
    } else if (header[0] == "contents") {
      TakeContents(header);
    } else {
      TakePayload(header[1]);
    }
  }
  if (!m_rest.empty()) FailDamaged("something follows its end");
  CheckContents();
  return std::move(m_file);
}

std::string_view HelpFileReader::TakeLine() {
  const auto end = m_rest.find('\n');
  if (end == std::string_view::npos && m_rest.size() <= kLongestLine) FailCutShort();
  if (end > kLongestLine) FailDamaged("a line is too long");
  const std::string_view line = m_rest.substr(0, end);
  m_rest.remove_prefix(end + 1);
  return line;
}

std::string_view HelpFileReader::TakePayload(std::string_view size) {
  const auto bytes = text::ToNumber<int>(size);
  if (!bytes || *bytes < 0) FailDamaged("a size is no number");
  const auto length = static_cast<std::size_t>(*bytes);
  if (length >= m_rest.size()) FailCutShort();  // a line feed follows the record
  const std::string_view payload = m_rest.substr(0, length);
  if (m_rest[length] != '\n') FailDamaged("a size is wrong");
  m_rest.remove_prefix(length + 1);
  return payload;
}

void HelpFileReader::TakeTopic(const Header& header) {
  const std::string_view payload = TakePayload(header[1]);
  if (header.size() < 3) FailDamaged("a topic has no name");
  const auto titleEnd = payload.find('\n');
  if (titleEnd == 0 || titleEnd == std::string_view::npos) FailDamaged("a topic has no title");

  Topic topic;
  topic.name = Utf8(header[2]);
  topic.title = Utf8(payload.substr(0, titleEnd));
  topic.body = Utf8(payload.substr(titleEnd + 1));
  topic.text = PlainText(topic.body);
  if (!m_file.m_names.emplace(topic.name, m_file.m_topics.size()).second) FailDamaged("a topic is there twice");
  for (std::size_t i = 3; i < header.size(); ++i) TakeContext(header[i]);
  m_file.m_topics.push_back(std::move(topic));
}

void HelpFileReader::TakeContext(std::string_view number) {
  const auto context = text::ToNumber<int>(number);
  if (!context || *context < 1 || *context > kLargestContext) FailDamaged("a context is no number");
  if (!m_file.m_contexts.emplace(*context, m_file.m_topics.size()).second) FailDamaged("a context is there twice");
}

void HelpFileReader::TakePicture(const Header& header) {
  const std::string_view payload = TakePayload(header[1]);
  if (header.size() != 3) FailDamaged("a picture has no name");
  if (!m_file.m_pictures.emplace(Utf8(header[2]), payload).second) FailDamaged("a picture is there twice");
}

void HelpFileReader::TakeContents(const Header& header) {
  const std::string_view payload = TakePayload(header[1]);
  if (!m_file.m_contents.empty()) FailDamaged("it has two tables of contents");
  std::size_t deepest = 0;
  for (const std::string_view line : text::Split(payload, '\n')) {
    const std::size_t depth = std::min(line.find_first_not_of('\t'), line.size());
    if (depth > deepest) FailDamaged("the contents skip a level");
    deepest = depth + 1;
    m_file.m_contents.push_back({static_cast<int>(depth), Utf8(line.substr(depth))});
  }
}

void HelpFileReader::CheckContents() const {
  if (m_file.m_contents.empty()) FailDamaged("it has no contents");
  for (const ContentsEntry& entry : m_file.m_contents)
    if (m_file.Find(entry.topic) == nullptr) FailDamaged("the contents name a topic that is not there");
}

}  // namespace dayvane::help
