// SPDX-License-Identifier: MIT
#include "views/FavoritesFile.h"

#include <algorithm>

#include "base/Error.h"
#include "base/Text.h"

namespace dayvane::favorites {

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
