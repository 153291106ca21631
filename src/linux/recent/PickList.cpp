// SPDX-License-Identifier: MIT
#include "linux/recent/PickList.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "base/Text.h"
#include "base/Utf8.h"

namespace dayvane::recent {

namespace {

constexpr std::size_t kLongestLine = 65536;  ///< bytes
constexpr std::string_view kEnd = "</oor:items>";
constexpr std::string_view kOrderList =
    "/org.openoffice.Office.Histories/Histories/org.openoffice.Office.Histories:HistoryInfo['PickList']/OrderList";

/// The text between two marks; nothing where one of them is missing.
std::optional<std::string_view> Between(std::string_view text, std::string_view start, std::string_view end) {
  const auto from = text.find(start);
  if (from == std::string_view::npos) return std::nullopt;
  text.remove_prefix(from + start.size());
  const auto to = text.find(end);
  return to == std::string_view::npos ? std::nullopt : std::optional(text.substr(0, to));
}

/// What an entity such as "amp" or "#x26" stands for; nothing for a name that XML does not define.
std::optional<std::string> Entity(std::string_view name) {
  static constexpr std::pair<std::string_view, char> kNamed[] = {
      {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
  for (const auto& [known, character] : kNamed)
    if (name == known) return std::string(1, character);
  if (!name.starts_with('#')) return std::nullopt;
  const bool isHexadecimal = name.starts_with("#x");
  const auto number = text::ToNumber<std::uint32_t>(name.substr(isHexadecimal ? 2 : 1), isHexadecimal ? 16 : 10);
  constexpr std::uint32_t kLastCharacter = 0x10FFFF;
  if (!number || *number == 0 || *number > kLastCharacter) return std::nullopt;
  std::string character;
  utf8::Append(character, static_cast<char32_t>(*number));
  return character;
}

/// Text of XML without its entities; what is none stays as it is.
std::string Plain(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size();) {
    const auto end = text[i] == '&' ? text.find(';', i) : std::string_view::npos;
    const auto entity = end == std::string_view::npos ? std::nullopt : Entity(text.substr(i + 1, end - i - 1));
    plain += entity ? *entity : std::string(1, text[i]);
    i = entity ? end + 1 : i + 1;
  }
  return plain;
}

/// Calls `visit` with the text behind each mark, up to the next one.
template <class Visit>
void ForEachBehind(std::string_view text, std::string_view mark, Visit visit) {
  for (auto at = text.find(mark); at != std::string_view::npos;) {
    const auto next = text.find(mark, at + mark.size());
    visit(text.substr(at, next == std::string_view::npos ? next : next - at));
    at = next;
  }
}

}  // namespace

void PickListReader::Feed(std::string_view bytes) {
  KeepTail(bytes);
  while (const auto line = text::TakeLine(bytes)) {
    FeedLine(*line);
    EndLine();
  }
  FeedLine(bytes);
}

std::optional<std::vector<std::string>> PickListReader::Finish() {
  EndLine();
  if (!m_tail.ends_with(kEnd)) return std::nullopt;
  std::vector<std::string> picks;
  std::unordered_set<std::string> known;
  for (const auto& [number, address] : m_picks)
    if (known.insert(address).second) picks.push_back(address);
  return picks;
}

void PickListReader::FeedLine(std::string_view part) {
  m_isTooLong = m_isTooLong || m_line.size() + part.size() > kLongestLine;
  if (m_isTooLong)
    m_line.clear();
  else
    m_line += part;
}

void PickListReader::EndLine() {
  ForEachBehind(m_line, "<item ", [this](std::string_view item) { ReadItem(item); });
  m_line.clear();
  m_isTooLong = false;
}

void PickListReader::ReadItem(std::string_view item) {
  const auto path = Between(item, "oor:path=\"", "\"");
  if (!path || Plain(*path) != kOrderList) return;
  ForEachBehind(item, "<node ", [this](std::string_view node) { ReadNode(node); });
}

void PickListReader::ReadNode(std::string_view node) {
  const auto name = Between(node, "oor:name=\"", "\"");
  const auto number = name ? text::ToNumber<std::size_t>(*name) : std::nullopt;
  const auto property = node.find("\"HistoryItemRef\"");
  if (!number || *number >= kMostPicks || property == std::string_view::npos) return;
  const auto address = Between(node.substr(property), "<value>", "</value>");
  if (address && !address->empty()) m_picks[*number] = Plain(*address);
}

void PickListReader::KeepTail(std::string_view bytes) {
  static constexpr std::string_view kBlanks = " \t\r\n";
  std::string tail;
  for (auto byte = bytes.rbegin(); byte != bytes.rend() && tail.size() < kEnd.size(); ++byte)
    if (kBlanks.find(*byte) == std::string_view::npos) tail += *byte;
  m_tail.append(tail.rbegin(), tail.rend());
  m_tail.erase(0, m_tail.size() - std::min(m_tail.size(), kEnd.size()));
}

PickedRange PickedSince(const std::vector<std::uint64_t>& before, const std::vector<std::uint64_t>& now) {
  std::unordered_map<std::uint64_t, std::size_t> places;
  for (std::size_t i = 0; i < before.size(); ++i) places.emplace(before[i], i);
  const auto shorter = static_cast<std::ptrdiff_t>(std::min(before.size(), now.size()));
  const auto changed = std::mismatch(now.begin(), now.begin() + shorter, before.begin()).first;
  PickedRange range{static_cast<std::size_t>(changed - now.begin()), now.size()};
  // Of a list that is cut off, more comes to light at the end when entries above are removed.
  if (before.size() >= PickListReader::kMostPicks)
    while (range.last > range.first && !places.contains(now[range.last - 1])) --range.last;
  for (auto below = before.size(); range.last > range.first; --range.last) {
    const auto place = places.find(now[range.last - 1]);
    if (place == places.end() || place->second >= below) break;
    below = place->second;
  }
  return range;
}

}  // namespace dayvane::recent
