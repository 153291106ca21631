// SPDX-License-Identifier: MIT
#include "linux/recent/RecentList.h"

#include <QString>
#include <algorithm>
#include <iterator>
#include <optional>
#include <pugixml.hpp>
#include <set>
#include <utility>

#include "base/Utf8.h"

namespace dayvane::recent {

namespace {

using pugi::xml_node;

constexpr std::size_t kLongestBookmark = 1U << 20U;  ///< bytes
constexpr std::ptrdiff_t kMostParts = 2'000'000;     ///< tags and attributes parsed at once: each takes memory
constexpr int kDeepest = 64;                         ///< elements within elements
constexpr int kMostAttributes = 64;                  ///< of one tag

/// Elements are known by their local name: the prefix of a namespace is the writer's choice, and not every writer
/// declares the ones it uses.
std::string_view LocalName(xml_node node) {
  const std::string_view name = node.name();
  return name.substr(name.rfind(':') + 1);
}

bool IsBookmark(xml_node node) {
  return LocalName(node) == "bookmark";
}

std::optional<Moment> MomentOf(xml_node node, const char* attribute) {
  return ParseIsoMoment(QString::fromUtf8(node.attribute(attribute).value()));
}

/// The name of an application, or else the first word of its command, which GTK puts in quotes: "'gedit %u'".
std::string ProgramOf(xml_node application) {
  const std::string_view name = application.attribute("name").value();
  if (!name.empty()) return std::string(name);
  constexpr std::string_view kBetween = "'\" \t";
  std::string_view command = application.attribute("exec").value();
  command.remove_prefix(std::min(command.find_first_not_of(kBetween), command.size()));
  return std::string(command.substr(0, command.find_first_of(kBetween)));
}

/// Notes the program if it is one.
void ReadPart(xml_node part, RecentEntry& entry, std::set<std::string>& programs) {
  const auto name = LocalName(part);
  if (name == "private") entry.isPrivate = true;
  if (name == "mime-type") entry.mimeType = part.attribute("type").value();
  if (name != "application") return;
  const auto program = programs.insert(ProgramOf(part)).first;
  auto moment = MomentOf(part, "modified");
  if (!moment) moment = ParseEpochMoment(QString::fromUtf8(part.attribute("timestamp").value()));
  if (moment) entry.openings.push_back({*moment, *program});
}

/// Calls `visit` for every node below this one, in the order of the text.
template <class Visit>
void ForEachBelow(xml_node node, Visit visit) {
  node.find_node([&](xml_node below) { return visit(below), false; });
}

RecentEntry ReadBookmark(xml_node bookmark) {
  RecentEntry entry;
  entry.href = bookmark.attribute("href").value();
  std::set<std::string> programs;
  ForEachBelow(bookmark, [&](xml_node part) { ReadPart(part, entry, programs); });
  // The times of the entry itself belong to its only program, or to nobody knows which.
  const std::string only = programs.size() == 1 ? *programs.begin() : "";
  const auto take = [&](const char* attribute) {
    if (const auto moment = MomentOf(bookmark, attribute)) entry.openings.push_back({*moment, only});
  };
  const bool isTimedByProgram = !entry.openings.empty();
  if (!isTimedByProgram) {
    take("modified");
    take("added");
  }
  if (isTimedByProgram || entry.openings.empty()) take("visited");
  return entry;
}

/// More attributes than any program writes, or two of the same name.
bool HasOddAttributes(xml_node node) {
  int count = 0;
  for (const auto attribute : node.attributes())
    if (++count > kMostAttributes || node.attribute(attribute.name()) != attribute) return true;
  return false;
}

/// Whether pugixml accepts something here that a sound list cannot have.
bool IsFaulty(xml_node node) {
  int depth = 0;
  for (xml_node above = node.parent(); above; above = above.parent()) {
    // Entries do not nest: the one before lacks its end.
    if (++depth > kDeepest || (IsBookmark(node) && IsBookmark(above))) return true;
  }
  return HasOddAttributes(node) || std::string_view(node.value()).size() > kLongestBookmark;
}

/// The entries of a text that is one element of this name; nothing when it is anything else, or damaged.
std::optional<std::vector<RecentEntry>> ReadElement(std::string_view text, std::string_view name) {
  if (std::ranges::count_if(text, [](char c) { return c == '<' || c == '='; }) > kMostParts) return std::nullopt;
  // parse_fragment: text beside the element is seen and refused. The encoding is UTF-8, whatever the text declares.
  constexpr unsigned kOptions = pugi::parse_escapes | pugi::parse_wconv_attribute | pugi::parse_fragment;
  pugi::xml_document document;
  if (!document.load_buffer(text.data(), text.size(), kOptions, pugi::encoding_utf8)) return std::nullopt;
  const xml_node element = document.first_child();
  if (LocalName(element) != name || element.next_sibling() || document.find_node(IsFaulty)) return std::nullopt;
  std::vector<RecentEntry> entries;
  ForEachBelow(document.root(), [&](xml_node node) {
    if (IsBookmark(node)) entries.push_back(ReadBookmark(node));
  });
  return entries;
}

/// Whether a strict reader would refuse some character of the text; pugixml accepts any. References to control
/// characters are fine: GLib writes them.
bool HasOddCharacters(std::string_view text) {
  const auto isOdd = [](char c) { return static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\r' && c != '\n'; };
  if (!utf8::IsValid(text) || std::ranges::any_of(text, isOdd)) return true;
  static constexpr std::string_view kReferences[] = {"amp;", "lt;", "gt;", "quot;", "apos;", "#"};
  for (auto at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1)) {
    const auto isHere = [&](std::string_view name) { return text.substr(at + 1).starts_with(name); };
    if (std::ranges::none_of(kReferences, isHere)) return true;
  }
  return false;
}

/// Start of the next "<bookmark ...", not of a "<bookmark:groups>".
std::size_t FindBookmark(std::string_view text, std::size_t from) {
  constexpr std::string_view kStart = "<bookmark";
  for (auto at = text.find(kStart, from); at != std::string_view::npos; at = text.find(kStart, at + 1)) {
    const auto end = at + kStart.size();
    if (end < text.size() && std::string_view(" \t\r\n/>").find(text[end]) != std::string_view::npos) return at;
  }
  return std::string_view::npos;
}

/// The length of the tag that the text starts with; npos when the tag has no end.
std::size_t TagLength(std::string_view text) {
  char quote = '\0';
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (quote == '\0' && c == '>') return i + 1;
    if (quote == '\0' && (c == '"' || c == '\''))
      quote = c;
    else if (c == quote)
      quote = '\0';
  }
  return std::string_view::npos;
}

/// The text up to the end of the bookmark that it starts with, or all of it when that end is missing.
std::string_view UpToEnd(std::string_view text) {
  const std::string_view tag = text.substr(0, TagLength(text));
  if (tag.ends_with("/>")) return tag;
  const auto endTag = text.find("</bookmark>");
  return endTag == std::string_view::npos ? text : text.substr(0, endTag + std::string_view("</bookmark>").size());
}

/// Reads each bookmark by itself: a damaged one costs only itself.
std::vector<RecentEntry> ReadPieces(std::string_view text) {
  std::vector<RecentEntry> entries;
  for (auto start = FindBookmark(text, 0); start != std::string_view::npos;) {
    const auto next = FindBookmark(text, start + 1);
    const auto piece = UpToEnd(text.substr(start, std::min(next, text.size()) - start));
    auto found = piece.size() > kLongestBookmark ? std::nullopt : ReadElement(piece, "bookmark");
    if (found) std::ranges::move(*found, std::back_inserter(entries));
    start = next;
  }
  return entries;
}

bool ReachesEnd(std::string_view text) {
  const auto last = text.find_last_not_of(" \t\r\n");
  return last != std::string_view::npos && text.substr(0, last + 1).ends_with("</xbel>");
}

}  // namespace

RecentList ParseRecentList(std::string_view bytes) {
  std::string text(bytes);
  // A null would end the text. An address with "#" names no document, like one with a null.
  std::ranges::replace(text, '\0', '#');
  auto whole = ReadElement(text, "xbel");
  RecentList list;
  list.isWellFormed = whole && !HasOddCharacters(bytes);
  list.isComplete = whole || ReachesEnd(text);
  list.entries = whole ? std::move(*whole) : ReadPieces(text);
  return list;
}

}  // namespace dayvane::recent
