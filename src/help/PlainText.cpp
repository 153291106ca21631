// SPDX-License-Identifier: MIT
#include "help/PlainText.h"

#include <array>
#include <charconv>
#include <utility>

#include "base/Utf8.h"

namespace dayvane::help {

namespace {

constexpr std::array<std::pair<std::string_view, char>, 5> kReferences{
    {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}}};

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// What stands between "<" and ">".
bool PartsWords(std::string_view tag) {
  const bool ends = tag.starts_with('/') || tag.ends_with('/');
  const std::string_view name = tag.starts_with('/') ? tag.substr(1) : tag;
  return ends && name != "b" && name != "i";
}

/// What stands between "&" and ";".
void AppendReference(std::string& text, std::string_view name) {
  for (const auto& [known, character] : kReferences)
    if (name == known) text += character;
  if (!name.starts_with('#')) return;
  const bool isHexadecimal = name.starts_with("#x");
  name.remove_prefix(isHexadecimal ? 2 : 1);
  std::uint32_t number = 0;
  constexpr std::uint32_t kLast = 0x10FFFF;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number, isHexadecimal ? 16 : 10);
  if (error == std::errc() && number <= kLast) utf8::Append(text, number);
}

std::string Simplified(std::string_view text) {
  std::string words;
  for (const char c : text) {
    if (!IsBlank(c))
      words += c;
    else if (!words.empty() && words.back() != ' ')
      words += ' ';
  }
  if (words.ends_with(' ')) words.pop_back();
  return words;
}

}  // namespace

std::string PlainText(std::string_view body) {
  std::string text;
  while (!body.empty()) {
    const char first = body.front();
    body.remove_prefix(1);
    if (first != '<' && first != '&') {
      text += first;
      continue;
    }
    const auto end = body.find(first == '<' ? '>' : ';');
    if (end == std::string_view::npos) break;
    const std::string_view inside = body.substr(0, end);
    body.remove_prefix(end + 1);
    if (first == '&')
      AppendReference(text, inside);
    else if (PartsWords(inside))
      text += ' ';
  }
  return Simplified(text);
}

}  // namespace dayvane::help
