// SPDX-License-Identifier: MIT
#include "linux/registry/SettingsText.h"

#include <charconv>

#include "base/Utf8.h"
#include "linux/glib/GlibHandles.h"

namespace dayvane::registry {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kNameless = "@";
constexpr std::string_view kBlanks = " \t";

// The characters that have an escape of their own, and its letters.
constexpr std::string_view kEscaped = "\\\n\r\t ";
constexpr std::string_view kLetters = "\\nrts";

// GLib knows only comments with "#". Those with ";" go through it under a mark that no text can have.
constexpr std::string_view kSemicolon = ";";
constexpr std::string_view kSemicolonInGlib = "#\x01";

/// GLib would read past the end of a character that is cut off, and no further than a zero. A carriage return ends a
/// line with the line feed behind it, from which it may be cut off.
bool IsText(std::string_view bytes) {
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const bool endsLine = bytes[i] == '\n' || (bytes[i] == '\r' && (i + 1 == bytes.size() || bytes[i + 1] == '\n'));
    if (text::IsControl(bytes[i]) && bytes[i] != '\t' && !endsLine) return false;
  }
  return utf8::IsValid(bytes);
}

std::string Escape(char c) {
  static constexpr std::string_view kDigits = "0123456789abcdef";
  const auto byte = static_cast<unsigned char>(c);
  if (const auto known = kEscaped.find(c); known != std::string_view::npos) return {'\\', kLetters[known]};
  return {'\\', 'x', kDigits[byte >> 4], kDigits[byte & 0xF]};
}

std::string Escaped(std::string_view text, std::string_view special = {}) {
  const bool utf8 = utf8::IsValid(text);
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const bool blankAtEnd = c == ' ' && (i == 0 || i + 1 == text.size());
    const bool foreign = !utf8 && static_cast<unsigned char>(c) >= 0x80;
    const bool plain = c != '\\' && !text::IsControl(c) && !foreign && !blankAtEnd && special.find(c) == special.npos;
    out += plain ? std::string(1, c) : Escape(c);
  }
  return out;
}

/// GLib takes brackets in a name for the mark of a language, and "Encoding" for something to obey.
std::string KeyOf(std::string_view name) {
  if (name.empty()) return std::string(kNameless);
  std::string key = Escaped(name, "=[]");
  const bool misleads = name == kNameless || name == "Encoding" || name[0] == ';' || name[0] == '#';
  return misleads ? Escape(key[0]) + key.substr(1) : key;
}

/// Takes a character or an escape from the front of the text.
char TakeByte(std::string_view& text) {
  char meaning = text[0];
  std::size_t length = 1;
  const auto letter = text[0] == '\\' && text.size() > 1 ? kLetters.find(text[1]) : kLetters.npos;
  if (letter != kLetters.npos) {
    meaning = kEscaped[letter];
    length = 2;
  }
  unsigned byte = 0;
  if (text.size() >= 4 && text.starts_with("\\x") &&
      std::from_chars(text.data() + 2, text.data() + 4, byte, 16).ptr == text.data() + 4) {
    meaning = static_cast<char>(byte);
    length = 4;
  }
  text.remove_prefix(length);
  return meaning;
}

std::string Unescaped(std::string_view text) {
  std::string out;
  while (!text.empty()) out += TakeByte(text);
  return out;
}

std::string NameOf(std::string_view key) {
  return key == kNameless ? std::string() : Unescaped(key);
}

/// GLib has taken away the blanks before it already.
std::string TextOf(std::string_view value) {
  return Unescaped(value.substr(0, value.find_last_not_of(kBlanks) + 1));
}

/// The text with the other mark where a line starts with this one.
std::string WithMark(std::string_view mark, std::string_view other, std::string_view text) {
  std::string out;
  bool atStart = true;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isMark = atStart && text.substr(i).starts_with(mark);
    atStart = text[i] == '\n' || (atStart && kBlanks.find(text[i]) != kBlanks.npos);
    out += isMark ? other : text.substr(i, 1);
    if (isMark) i += mark.size() - 1;
  }
  return out;
}

/// Null when the text is damaged.
glib::KeyFile Load(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  if (!IsText(text)) return nullptr;
  if (text.ends_with('\r')) text.remove_suffix(1);
  glib::KeyFile file(g_key_file_new());
  const std::string marked = WithMark(kSemicolon, kSemicolonInGlib, text);
  const auto keepAll = static_cast<GKeyFileFlags>(G_KEY_FILE_KEEP_COMMENTS | G_KEY_FILE_KEEP_TRANSLATIONS);
  if (g_key_file_load_from_data(file.get(), marked.data(), marked.size(), keepAll, nullptr) == 0) return nullptr;
  return file;
}

std::string DataOf(GKeyFile* file) {
  gsize length = 0;
  const glib::Text data(g_key_file_to_data(file, &length, nullptr));
  return WithMark(kSemicolonInGlib, kSemicolon, {data.get(), length});
}

template <class Visit>
void ForEachValue(GKeyFile* file, Visit visit) {
  const glib::Texts groups(g_key_file_get_groups(file, nullptr));
  for (char** group = groups.get(); *group != nullptr; ++group) {
    const glib::Texts keys(g_key_file_get_keys(file, *group, nullptr, nullptr));
    for (char** key = keys.get(); *key != nullptr; ++key) {
      const glib::Text value(g_key_file_get_value(file, *group, *key, nullptr));
      visit(*group, *key, TextOf(value.get()));
    }
  }
}

/// Puts lines behind the last value of a group. GLib itself would put them behind the comments above the next group.
void Insert(const std::string& lines, const std::string& group, std::string& data) {
  const std::string header = "[" + group + "]\n";
  const auto start = ("\n" + data).find("\n" + header);
  if (start == std::string::npos) {
    data += (data.empty() ? "" : "\n") + header + lines;
    return;
  }
  std::size_t end = start + header.size();
  for (std::size_t line = end; line < data.size() && data[line] != '[';) {
    const char first = data[data.find_first_not_of(kBlanks, line)];
    line = data.find('\n', line) + 1;
    if (first != '#' && first != ';' && first != '\n') end = line;
  }
  data.insert(end, lines);
}

}  // namespace

const std::string* FindSetting(const SettingsKeys& keys, std::string_view path, std::string_view name) {
  const auto key = keys.find(path);
  if (key == keys.end()) return nullptr;
  const auto value = key->second.find(name);
  return value == key->second.end() ? nullptr : &value->second;
}

std::optional<SettingsKeys> ParseSettings(std::string_view text) {
  const glib::KeyFile file = Load(text);
  if (!file) return std::nullopt;
  SettingsKeys keys;
  ForEachValue(file.get(),
               [&](const char* group, const char* key, const std::string& value) { keys[group][NameOf(key)] = value; });
  return keys;
}

std::string WriteSettings(const SettingsKeys& keys, std::string_view old) {
  glib::KeyFile file = Load(old);
  if (!file) file.reset(g_key_file_new());
  SettingsKeys added = keys;
  ForEachValue(file.get(), [&](const char* group, const char* key, const std::string& value) {
    const std::string* text = FindSetting(keys, group, NameOf(key));
    if (text != nullptr && *text != value) g_key_file_set_value(file.get(), group, key, Escaped(*text).c_str());
    added[group].erase(NameOf(key));
  });
  std::string text = DataOf(file.get());
  for (const auto& [path, values] : added) {
    std::string lines;
    for (const auto& [name, value] : values) lines += KeyOf(name) + "=" + Escaped(value) + "\n";
    if (!lines.empty()) Insert(lines, path, text);
  }
  return text;
}

}  // namespace dayvane::registry
