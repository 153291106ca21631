#include "linux/registry/SettingsText.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "base/Utf8.h"

namespace dayvane::registry {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kNameless = "@";

struct Escape {
  char letter;
  char meaning;
};
constexpr Escape kEscapes[] = {{'\\', '\\'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'s', ' '}};

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

std::string_view TrimLine(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

void AppendHex(char c, std::string& out) {
  static constexpr char kDigits[] = "0123456789abcdef";
  const auto byte = static_cast<unsigned char>(c);
  out += "\\x";
  out += kDigits[byte >> 4];
  out += kDigits[byte & 0xF];
}

void AppendEscaped(char c, std::string& out) {
  const auto* known = std::find_if(std::begin(kEscapes), std::end(kEscapes), [&](Escape e) { return e.meaning == c; });
  if (known == std::end(kEscapes)) return AppendHex(c, out);
  out += '\\';
  out += known->letter;
}

std::string Escaped(std::string_view text, std::string_view special = {}) {
  const bool utf8 = utf8::IsValid(text);
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const bool atEnd = i == 0 || i + 1 == text.size();
    const bool foreign = !utf8 && static_cast<unsigned char>(c) >= 0x80;
    if (c == '\\' || IsControl(c) || foreign || (c == ' ' && atEnd) || special.find(c) != std::string_view::npos)
      AppendEscaped(c, out);
    else
      out += c;
  }
  return out;
}

std::string EscapedName(std::string_view name) {
  if (name.empty()) return std::string(kNameless);
  std::string escaped = Escaped(name, "=");
  if (name != kNameless && std::string_view("[;#").find(name[0]) == std::string_view::npos) return escaped;
  std::string first;
  AppendHex(name[0], first);
  return first + escaped.substr(1);
}

/// The byte of an escape "\xHH" at the start of the text.
std::optional<char> HexByte(std::string_view text) {
  unsigned byte = 0;
  if (text.size() < 4 || text[1] != 'x') return std::nullopt;
  const auto [end, error] = std::from_chars(text.data() + 2, text.data() + 4, byte, 16);
  if (error != std::errc{} || end != text.data() + 4) return std::nullopt;
  return static_cast<char>(byte);
}

std::string Unescaped(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    std::size_t length = 1;
    char meaning = text[0];
    if (text[0] == '\\' && text.size() > 1) {
      for (const Escape& escape : kEscapes) {
        if (text[1] != escape.letter) continue;
        meaning = escape.meaning;
        length = 2;
      }
      if (const auto byte = HexByte(text)) {
        meaning = *byte;
        length = 4;
      }
    }
    out += meaning;
    text.remove_prefix(length);
  }
  return out;
}

/// Reads line by line; `m_values` are those of the key whose line came last, none when that line was unreadable.
class Parser {
 public:
  ParsedSettings Parse(std::string_view text) {
    if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
    while (!text.empty()) {
      const auto end = std::min(text.find('\n'), text.size());
      if (!ParseLine(text.substr(0, end))) m_parsed.damaged = true;
      text.remove_prefix(std::min(end + 1, text.size()));
    }
    return std::move(m_parsed);
  }

 private:
  bool ParseLine(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    line = TrimLine(line);
    if (line.empty() || line[0] == ';' || line[0] == '#') return true;
    if (line[0] == '[') m_values = nullptr;
    const bool raw = std::any_of(line.begin(), line.end(), [](char c) { return IsControl(c) && c != '\t'; });
    if (raw || !utf8::IsValid(line)) return false;
    return line[0] == '[' ? ParseKey(line) : ParseValue(line);
  }

  bool ParseKey(std::string_view line) {
    if (line.size() < 3 || !line.ends_with(']')) return false;
    m_values = &m_parsed.keys[std::string(line.substr(1, line.size() - 2))];
    return true;
  }

  bool ParseValue(std::string_view line) {
    const auto equals = line.find('=');
    if (m_values == nullptr || equals == std::string_view::npos || equals == 0) return false;
    const std::string_view name = TrimLine(line.substr(0, equals));
    const std::string_view value = TrimLine(line.substr(equals + 1));
    (*m_values)[name == kNameless ? std::string() : Unescaped(name)] = Unescaped(value);
    return true;
  }

  ParsedSettings m_parsed;
  SettingsValues* m_values = nullptr;
};

}  // namespace

ParsedSettings ParseSettings(std::string_view text) {
  return Parser().Parse(text);
}

std::string WriteSettings(const SettingsKeys& keys) {
  std::string out;
  for (const auto& [path, values] : keys) {
    if (values.empty()) continue;
    if (!out.empty()) out += '\n';
    out += "[" + path + "]\n";
    for (const auto& [name, value] : values) out += EscapedName(name) + "=" + Escaped(value) + "\n";
  }
  return out;
}

}  // namespace dayvane::registry
