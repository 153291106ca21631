// SPDX-License-Identifier: MIT
#include "views/FavoritesFile.h"

#include <charconv>
#include <cstdio>
#include <optional>

#include "base/Error.h"
#include "base/Text.h"

namespace dayvane::favorites {

namespace {

std::string FormatDate(const Date& date) {
  const platform::DateConventions plain;
  const bool timeAlone = !date.HasDatePart();
  const char* pattern = timeAlone ? "hh:nn:ss" : date.HasTimePart() ? "yyyy-mm-dd hh:nn:ss" : "yyyy-mm-dd";
  return "#" + Format(date, pattern, plain) + "#";
}

template <class Number>
std::string FormatNumber(Number number) {
  char buffer[64];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, number).ptr;
  return {buffer, end};
}

/// The integers of a text whose fields have fixed widths, "0000-00-00 00:00:00"; nothing when it differs in shape.
template <std::size_t Count>
std::optional<std::array<int, Count>> ParseShape(std::string_view text, std::string_view shape) {
  if (text.size() != shape.size()) return std::nullopt;
  std::array<int, Count> numbers{};
  std::size_t field = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool digit = text[i] >= '0' && text[i] <= '9';
    if (shape[i] != '0') {
      if (text[i] != shape[i]) return std::nullopt;
      ++field;
      continue;
    }
    if (!digit) return std::nullopt;
    numbers[field] = numbers[field] * 10 + (text[i] - '0');
  }
  return numbers;
}

std::optional<Date> DateOf(int year, int month, int day, int hour, int minute, int second) {
  try {
    return Date::Of(year, static_cast<unsigned>(month), static_cast<unsigned>(day), hour, minute, second);
  } catch (const Error&) {
    return std::nullopt;  // A damaged file may hold any digits.
  }
}

std::optional<Date> ParseDate(std::string_view text) {
  if (const auto n = ParseShape<6>(text, "0000-00-00 00:00:00"))
    return DateOf((*n)[0], (*n)[1], (*n)[2], (*n)[3], (*n)[4], (*n)[5]);
  if (const auto n = ParseShape<3>(text, "0000-00-00")) return DateOf((*n)[0], (*n)[1], (*n)[2], 0, 0, 0);
  if (const auto n = ParseShape<3>(text, "00:00:00")) return DateOf(1899, 12, 30, (*n)[0], (*n)[1], (*n)[2]);
  return std::nullopt;
}

Value ParseUnquoted(std::string_view text) {
  if (text.empty()) return {};
  if (text.size() >= 2 && text.front() == '#' && text.back() == '#')
    if (const auto date = ParseDate(text.substr(1, text.size() - 2))) return *date;
  if (const auto whole = text::ToNumber<std::int64_t>(text)) return *whole;
  if (const auto number = text::ToNumber<double>(text)) return *number;
  return std::string(text);
}

}  // namespace

std::string FormatValue(const Value& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::to_string(*whole);
  if (const auto* number = std::get_if<double>(&value)) return FormatNumber(*number + 0.0);  // a negative zero is zero
  if (const auto* date = std::get_if<Date>(&value)) return FormatDate(*date);
  if (const auto* text = std::get_if<std::string>(&value)) return '"' + *text + '"';
  return {};
}

std::string FormatRecord(const Record& record) {
  std::string line;
  for (const Value& value : record) {
    if (&value != &record.front()) line += ',';
    line += FormatValue(value);
  }
  return line + "\r\n";
}

Value ValueReader::Next() {
  if (AtEnd()) throw Error(kInputPastEnd, "Input past end of file");
  SkipBlanks();
  Value value = m_rest.starts_with('"') ? Quoted() : Unquoted();
  SkipSeparator();
  return value;
}

Value ValueReader::Quoted() {
  m_rest.remove_prefix(1);
  const auto end = m_rest.find('"');
  std::string text(m_rest.substr(0, end));
  m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
  // Nothing but blanks may stand between a closing mark and the separator; what does is passed over.
  m_rest.remove_prefix(std::min(m_rest.find_first_of(",\r\n"), m_rest.size()));
  return text;
}

Value ValueReader::Unquoted() {
  const auto end = std::min(m_rest.find_first_of(",\r\n"), m_rest.size());
  const std::string_view text = text::Trim(m_rest.substr(0, end));
  m_rest.remove_prefix(end);
  return ParseUnquoted(text);
}

void ValueReader::SkipBlanks() {
  const auto first = m_rest.find_first_not_of(" \t");
  m_rest.remove_prefix(std::min(first, m_rest.size()));
}

void ValueReader::SkipSeparator() {
  if (m_rest.starts_with("\r\n"))
    m_rest.remove_prefix(2);
  else if (!m_rest.empty())
    m_rest.remove_prefix(1);
}

}  // namespace dayvane::favorites
