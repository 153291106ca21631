// SPDX-License-Identifier: MIT
#include "base/Text.h"

#include <algorithm>
#include <iterator>

#include "base/CaseMapping.h"
#include "base/Utf8.h"

namespace dayvane::text {

namespace {

char AsciiUpper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
char AsciiLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

template <class Ascii, class Simple>
std::string MapCase(std::string_view text, Ascii ascii, Simple simple) {
  std::string out;
  out.reserve(text.size());
  if (IsAscii(text)) {
    std::transform(text.begin(), text.end(), std::back_inserter(out), ascii);
    return out;
  }
  while (!text.empty()) {
    const auto [codePoint, length] = utf8::First(text);
    if (length == 0) {
      out += text[0];
      text.remove_prefix(1);
      continue;
    }
    utf8::Append(out, simple(codePoint));
    text.remove_prefix(length);
  }
  return out;
}

}  // namespace

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (auto end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
    parts.push_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  parts.push_back(text);
  return parts;
}

std::optional<std::string_view> TakeLine(std::string_view& text) {
  const auto end = text.find('\n');
  if (end == std::string_view::npos) return std::nullopt;
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end + 1);
  return line;
}

std::string ToUpper(std::string_view text) {
  return MapCase(text, AsciiUpper, SimpleUpper);
}

std::string ToLower(std::string_view text) {
  return MapCase(text, AsciiLower, SimpleLower);
}

int CompareIgnoringCase(std::string_view left, std::string_view right) {
  if (IsAscii(left) && IsAscii(right)) {
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
      const char a = AsciiLower(left[i]);
      const char b = AsciiLower(right[i]);
      if (a != b) return a < b ? -1 : 1;
    }
    return left.size() < right.size() ? -1 : left.size() > right.size() ? 1 : 0;
  }
  const int order = ToLower(left).compare(ToLower(right));
  return order < 0 ? -1 : order > 0 ? 1 : 0;
}

bool EndsWithIgnoringCase(std::string_view text, std::string_view ending) {
  return text.size() >= ending.size() && CompareIgnoringCase(text.substr(text.size() - ending.size()), ending) == 0;
}

std::optional<std::int32_t> ToInt32(std::string_view text) {
  text = Trim(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  return ToNumber<std::int32_t>(text);
}

bool IsNumeric(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string NumberText(double number) {
  char buffer[32];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, number).ptr;
  return {buffer, end};
}

std::string Padded(std::int64_t number, int digits) {
  std::string plain = std::to_string(number);
  const auto width = static_cast<std::size_t>(digits);
  if (plain.size() < width) plain.insert(number < 0 ? 1 : 0, width - plain.size(), '0');
  return plain;
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;
  // Greedy matching that falls back to the last "*" needs no recursion, so no name can make it slow.
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::string_view::npos;
  std::size_t resume = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      resume = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || AsciiLower(pattern[p]) == AsciiLower(name[n]))) {
      ++p;
      ++n;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++resume;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

}  // namespace dayvane::text
