// SPDX-License-Identifier: MIT
#include "linux/recent/RecentState.h"

#include <charconv>
#include <optional>
#include <unordered_set>
#include <vector>

#include "base/Text.h"
#include "base/Utf8.h"

namespace dayvane::recent {

namespace {

constexpr std::string_view kHeader = "dayvane-recent 1";
constexpr std::string_view kNone = "-";

std::string Escape(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const bool isUtf8 = utf8::IsValid(text);
  std::string escaped;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (text::IsControl(c) || c == '%' || (byte >= 0x80 && !isUtf8))
      escaped += {'%', kDigits[byte >> 4U], kDigits[byte & 15U]};
    else
      escaped += c;
  }
  return escaped;
}

/// A number that is not negative: a state has no others.
template <class Number>
std::optional<Number> ParseNumber(std::string_view text, int base = 10) {
  return text.starts_with('-') ? std::nullopt : text::ToNumber<Number>(text, base);
}

/// Nothing for a text that Escape does not write. A null in particular would cut a path short in system calls.
std::optional<std::string> Unescape(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text::IsControl(text[i])) return std::nullopt;
    if (text[i] != '%') {
      plain += text[i];
      continue;
    }
    const auto byte = ParseNumber<std::uint8_t>(text.substr(i + 1, 2), 16);
    if (!byte || *byte == 0 || i + 2 >= text.size()) return std::nullopt;
    plain += static_cast<char>(*byte);
    i += 2;
  }
  return plain;
}

template <class Numbers, class Write>
std::string Join(const Numbers& numbers, Write write) {
  std::string joined;
  for (const auto number : numbers) joined += (joined.empty() ? "" : ",") + write(number);
  return joined.empty() ? std::string(kNone) : joined;
}

std::string Decimal(Moment moment) {
  return std::to_string(moment);
}

std::string Hexadecimal(std::uint16_t hash) {
  char digits[4];
  const auto end = std::to_chars(digits, digits + sizeof digits, hash, 16).ptr;
  return {digits, end};
}

std::string Flags(const RecentDocument& document) {
  std::string flags;
  if (document.isCaptured) flags += 'c';
  if (document.isUnlinkable) flags += 'o';
  if (document.isToBeCleared) flags += 'x';
  return flags.empty() ? std::string(kNone) : flags;
}

std::string Future(const RecentDocument& document) {
  if (document.futureTo == 0) return std::string(kNone);
  return Decimal(document.futureFrom) + ":" + Decimal(document.futureTo);
}

std::string DocumentLine(const std::string& path, const RecentDocument& document) {
  std::string line = "document";
  const std::string name = document.name.empty() ? std::string(kNone) : Escape(document.name);
  for (const std::string& field : {Decimal(document.seen), Decimal(document.written), Flags(document), Future(document),
                                   Join(document.pending, Decimal), name, Escape(path)})
    line += "\t" + field;
  for (const auto& [source, telling] : document.told)
    line += "\t" + Escape(source) + "\t" + Decimal(telling.seen) + "\t" + Decimal(telling.future) + "\t" +
            Escape(telling.program);
  return line + "\n";
}

/// A list of numbers; nothing when one part of it is not a number.
template <class Number>
std::optional<std::vector<Number>> ParseList(std::string_view text, int base) {
  std::vector<Number> numbers;
  if (text == kNone) return numbers;
  for (const std::string_view part : text::Split(text, ',')) {
    const auto number = ParseNumber<Number>(part, base);
    if (!number) return std::nullopt;
    numbers.push_back(*number);
  }
  return numbers;
}

bool ParseFlags(std::string_view text, RecentDocument& document) {
  if (text == kNone) return true;
  for (const char flag : text) {
    if (flag == 'c')
      document.isCaptured = true;
    else if (flag == 'o')
      document.isUnlinkable = true;
    else if (flag == 'x')
      document.isToBeCleared = true;
    else
      return false;
  }
  return !text.empty();
}

bool ParseFuture(std::string_view text, RecentDocument& document) {
  if (text == kNone) return true;
  const auto parts = text::Split(text, ':');
  if (parts.size() != 2) return false;
  const auto from = ParseNumber<Moment>(parts[0]);
  const auto to = ParseNumber<Moment>(parts[1]);
  if (!from || !to || *to == 0 || *from > *to) return false;
  document.futureFrom = *from;
  document.futureTo = *to;
  return true;
}

/// Whether a shortcut of ours may have this name, which must not lead out of the folder.
bool IsShortcutName(const std::string& name) {
  return name.ends_with(".lnk") && !name.starts_with('.') && name.size() <= 255 && name.find('/') == std::string::npos;
}

bool ParseName(std::string_view text, RecentDocument& document) {
  if (text == kNone) return true;
  const auto name = Unescape(text);
  if (!name || !IsShortcutName(*name)) return false;
  document.name = *name;
  return true;
}

constexpr std::size_t kDocumentFields = 8;
constexpr std::size_t kTellingFields = 4;

bool IsDocument(const std::vector<std::string_view>& fields) {
  return fields[0] == "document" && fields.size() >= kDocumentFields &&
         (fields.size() - kDocumentFields) % kTellingFields == 0;
}

/// Reads what the sources told, which follows the other fields.
bool ParseTellings(const std::vector<std::string_view>& fields, RecentDocument& document) {
  for (auto i = kDocumentFields; i < fields.size(); i += kTellingFields) {
    const auto source = Unescape(fields[i]);
    const auto seen = ParseNumber<Moment>(fields[i + 1]);
    const auto future = ParseNumber<Moment>(fields[i + 2]);
    const auto program = Unescape(fields[i + 3]);
    if (!source || source->empty() || !seen || !future || !program) return false;
    if (!document.told.emplace(*source, Telling{*seen, *future, *program}).second) return false;
  }
  return true;
}

class StateParser {
 public:
  StateReading Parse(std::string_view text) {
    m_reading.isDamaged = text::TakeLine(text) != kHeader;
    if (m_reading.isDamaged) return std::move(m_reading);
    while (!m_hasEnd) {
      const auto line = text::TakeLine(text);
      if (!line) break;
      if (!ParseLine(text::Split(*line, '\t'))) m_reading.isDamaged = true;
    }
    if (!m_hasEnd || !text.empty()) m_reading.isDamaged = true;
    return std::move(m_reading);
  }

 private:
  bool ParseLine(const std::vector<std::string_view>& fields) {
    if (IsDocument(fields)) return ParseDocument(fields);
    if (fields[0] == "program" && fields.size() == 4) return ParseProgram(fields);
    if (fields[0] == "source" && fields.size() == 3) return ParseSource(fields);
    if (fields[0] == "forgotten" && fields.size() == 4) return ParseForgotten(fields);
    if (fields[0] == "end" && fields.size() == 2) return ParseEnd(fields);
    m_reading.state.isEmptied = m_reading.state.isEmptied || fields[0] == "emptied";
    return fields[0] == "emptied" && fields.size() == 1;
  }

  bool ParseDocument(const std::vector<std::string_view>& fields) {
    RecentDocument document;
    const auto seen = ParseNumber<Moment>(fields[1]);
    const auto written = ParseNumber<Moment>(fields[2]);
    auto pending = ParseList<Moment>(fields[5], 10);
    const auto path = Unescape(fields[7]);
    if (!seen || !written || !pending || !path || !path->starts_with('/')) return false;
    if (!ParseFlags(fields[3], document) || !ParseFuture(fields[4], document) || !ParseName(fields[6], document) ||
        !ParseTellings(fields, document))
      return false;
    document.seen = *seen;
    document.written = *written;
    document.pending = std::move(*pending);
    if (m_reading.state.documents.contains(*path)) return false;
    if (!document.name.empty() && !m_names.insert(text::ToLower(document.name)).second) return false;
    m_reading.state.documents.emplace(*path, std::move(document));
    return true;
  }

  bool ParseSource(const std::vector<std::string_view>& fields) {
    const auto source = Unescape(fields[1]);
    const auto memory = Unescape(fields[2]);
    return source && memory && m_reading.state.memories.emplace(*source, *memory).second;
  }

  bool ParseProgram(const std::vector<std::string_view>& fields) {
    const auto type = Unescape(fields[1]);
    const auto moment = ParseNumber<Moment>(fields[2]);
    const auto program = Unescape(fields[3]);
    return type && moment && program && m_reading.state.programs.Add(*type, {*moment, *program});
  }

  bool ParseForgotten(const std::vector<std::string_view>& fields) {
    const auto latest = ParseNumber<Moment>(fields[1]);
    const auto number = ParseNumber<int>(fields[2]);
    const auto families = ParseList<std::uint16_t>(fields[3], 16);
    if (!latest || *latest == 0 || !number || *number > 999'999 || !families) return false;
    m_reading.state.forgotten = {*latest, *number, {families->begin(), families->end()}};
    return true;
  }

  bool ParseEnd(const std::vector<std::string_view>& fields) {
    m_hasEnd = true;
    return ParseNumber<std::size_t>(fields[1]) == m_reading.state.documents.size();
  }

  StateReading m_reading;
  std::unordered_set<std::string> m_names;
  bool m_hasEnd = false;
};

}  // namespace

std::string WriteState(const RecentState& state) {
  std::string text(kHeader);
  text += "\n";
  if (state.isEmptied) text += "emptied\n";
  if (state.forgotten.latest > 0)
    text += "forgotten\t" + Decimal(state.forgotten.latest) + "\t" + std::to_string(state.forgotten.highestNumber) +
            "\t" + Join(state.forgotten.families, Hexadecimal) + "\n";
  for (const auto& [source, memory] : state.memories)
    text += "source\t" + Escape(source) + "\t" + Escape(memory) + "\n";
  for (const auto& [type, last] : state.programs.All())
    text += "program\t" + Escape(type) + "\t" + Decimal(last.moment) + "\t" + Escape(last.program) + "\n";
  for (const auto& [path, document] : state.documents) text += DocumentLine(path, document);
  return text + "end\t" + std::to_string(state.documents.size()) + "\n";
}

StateReading ReadState(std::string_view text) {
  return StateParser().Parse(text);
}

}  // namespace dayvane::recent
