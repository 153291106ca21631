// SPDX-License-Identifier: MIT
#include "help/HelpFile.h"

#include <algorithm>

#include "base/Error.h"
#include "base/Text.h"
#include "help/HelpFileReader.h"

namespace dayvane::help {

namespace {

constexpr std::size_t kLargestFile = 32'000'000;  ///< ours has some 50 KB; a larger one is not read into memory

using Words = std::vector<std::string>;

/// In small letters.
Words WordsOf(std::string_view text) {
  Words words;
  for (const std::string lower = text::ToLower(text); const char c : lower + " ") {
    if (words.empty() || (c == ' ' && !words.back().empty())) words.emplace_back();
    if (c != ' ') words.back() += c;
  }
  words.pop_back();
  return words;
}

bool HoldsEveryWord(const std::string& lowerText, const Words& words) {
  return std::ranges::all_of(words, [&](const std::string& word) { return lowerText.find(word) != std::string::npos; });
}

bool HoldsAnyWord(const std::string& lowerText, const Words& words) {
  return std::ranges::any_of(words, [&](const std::string& word) { return lowerText.find(word) != std::string::npos; });
}

}  // namespace

HelpFile HelpFile::Read(platform::FileSystem& files, const std::string& path) {
  if (!files.Status(path)) throw Error(kFileNotFound, "The help file was not found.", path);
  std::string bytes;
  try {
    bytes = files.Read(path, kLargestFile + 1).bytes;
  } catch (const Error&) {
    // In words for the user who asked for help.
    throw Error(kPathFileAccess, "The help file cannot be opened.", path);
  }
  if (bytes.size() > kLargestFile) throw Error(kInvalidFileFormat, "The help file is too large.");
  return Parse(bytes);
}

HelpFile HelpFile::Parse(std::string_view bytes) {
  return HelpFileReader(bytes).Read();
}

const Topic* HelpFile::Find(const std::string& name) const {
  const auto found = m_names.find(name);
  return found == m_names.end() ? nullptr : &m_topics[found->second];
}

const Topic* HelpFile::FindContext(int contextId) const {
  const auto found = m_contexts.find(contextId);
  return found == m_contexts.end() ? nullptr : &m_topics[found->second];
}

std::string_view HelpFile::Picture(const std::string& name) const {
  const auto found = m_pictures.find(name);
  return found == m_pictures.end() ? std::string_view() : found->second;
}

std::vector<const Topic*> HelpFile::Search(std::string_view words) const {
  const Words wanted = WordsOf(words);
  std::vector<const Topic*> found;
  if (wanted.empty()) return found;
  for (const Topic& topic : m_topics)
    if (HoldsEveryWord(text::ToLower(topic.title + ' ' + topic.text), wanted)) found.push_back(&topic);
  std::stable_partition(found.begin(), found.end(),
                        [&](const Topic* topic) { return HoldsAnyWord(text::ToLower(topic->title), wanted); });
  return found;
}

}  // namespace dayvane::help
