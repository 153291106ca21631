// SPDX-License-Identifier: MIT
#include "app/Date.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>

#include "base/Error.h"
#include "base/Text.h"

namespace dayvane {

namespace {

using std::chrono::days;
using std::chrono::local_days;
using std::chrono::seconds;

constexpr std::int64_t kSecondsPerDay = 86400;
constexpr local_days kDayZero{std::chrono::year{1899} / 12 / 30};

[[noreturn]] void FailNoDate(std::string_view text) {
  throw Error(kTypeMismatch, "Type mismatch: \"" + std::string(text) + "\" is no date");
}

const platform::DateConventions& English() {
  static const platform::DateConventions conventions;
  return conventions;
}

std::optional<int> MonthNumber(std::string_view text, const platform::MonthNames& names) {
  for (std::size_t i = 0; i < names.size(); ++i)
    if (text::CompareIgnoringCase(text, names[i]) == 0) return static_cast<int>(i) + 1;
  return std::nullopt;
}

/// A name may mean different months in different languages: the user's own language decides, then English.
std::optional<int> MonthNumber(std::string_view text, const platform::DateConventions& conventions,
                               std::span<const platform::MonthNames> otherLanguages = {}) {
  if (text::IsNumeric(text)) return text::ToInt32(text);
  for (const auto* names : {&conventions.monthNames, &English().monthNames})
    if (const auto month = MonthNumber(text, *names)) return month;
  for (const auto& names : otherLanguages)
    if (const auto month = MonthNumber(text, names)) return month;
  return std::nullopt;
}

std::optional<int> Number(std::string_view text) {
  return text::IsNumeric(text) ? text::ToInt32(text) : std::nullopt;
}

int FullYear(int year, std::string_view text) {
  if (text.size() > 2) return year;
  return year < 30 ? 2000 + year : 1900 + year;
}

/// One field of a pattern and how to write it; the longest token that fits is taken first.
struct Token {
  std::string_view name;
  std::string (*write)(const Date&, const platform::DateConventions&, bool twelveHours);
};

int HourToShow(const Date& date, bool twelveHours) {
  return twelveHours ? (date.Hour() + 11) % 12 + 1 : date.Hour();
}

using Conventions = platform::DateConventions;

constexpr std::array kTokens{
    Token{"AM/PM", [](const Date& d, const Conventions& c, bool) { return d.Hour() < 12 ? c.am : c.pm; }},
    Token{"yyyy", [](const Date& d, const Conventions&, bool) { return text::Padded(d.Year(), 4); }},
    Token{"yy", [](const Date& d, const Conventions&, bool) { return text::Padded(d.Year() % 100, 2); }},
    Token{"mmmm", [](const Date& d, const Conventions& c, bool) { return c.monthNames[d.Month() - 1]; }},
    Token{"mm", [](const Date& d, const Conventions&, bool) { return text::Padded(d.Month(), 2); }},
    Token{"m", [](const Date& d, const Conventions&, bool) { return std::to_string(d.Month()); }},
    Token{"dd", [](const Date& d, const Conventions&, bool) { return text::Padded(d.Day(), 2); }},
    Token{"d", [](const Date& d, const Conventions&, bool) { return std::to_string(d.Day()); }},
    Token{"hh", [](const Date& d, const Conventions&, bool twelve) { return text::Padded(HourToShow(d, twelve), 2); }},
    Token{"h", [](const Date& d, const Conventions&, bool twelve) { return std::to_string(HourToShow(d, twelve)); }},
    Token{"nn", [](const Date& d, const Conventions&, bool) { return text::Padded(d.Minute(), 2); }},
    Token{"ss", [](const Date& d, const Conventions&, bool) { return text::Padded(d.Second(), 2); }},
};

const Token* TokenAt(std::string_view pattern) {
  for (const Token& token : kTokens)
    if (pattern.starts_with(token.name)) return &token;
  return nullptr;
}

/// Removes one character of literal text, or one text in apostrophes, from the pattern and returns what it stands for.
std::string TakeLiteralPiece(std::string_view& pattern) {
  std::string_view piece = pattern.substr(0, 1);
  std::size_t length = 1;
  if (piece == "'") {
    const auto end = std::min(pattern.find('\'', 1), pattern.size());
    length = std::min(end + 1, pattern.size());
    piece = length == 2 ? piece : pattern.substr(1, end - 1);
  }
  std::string literal(piece);
  pattern.remove_prefix(length);
  return literal;
}

/// Removes everything before the next field of a date from the pattern and returns the text that it stands for.
std::string TakeLiteral(std::string_view& pattern) {
  std::string literal;
  while (!pattern.empty() && std::string_view("dmy").find(pattern[0]) == std::string_view::npos)
    literal += TakeLiteralPiece(pattern);
  return literal;
}

const Token& MinutesToken() {
  for (const Token& token : kTokens)
    if (token.name == "nn") return token;
  return kTokens.front();
}

}  // namespace

Date::Date(std::chrono::local_seconds local) : m_seconds((local - kDayZero).count()) {}

Date Date::Of(int year, unsigned month, unsigned day, int hour, int minute, int second) {
  const std::chrono::year_month_day date{std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}};
  const bool timeFits = hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60;
  if (!date.ok() || year < 100 || year > 9999 || !timeFits)
    FailNoDate(std::to_string(month) + "/" + std::to_string(day) + "/" + std::to_string(year));
  return Date(local_days{date} + seconds{hour * 3600 + minute * 60 + second});
}

std::int64_t Date::DayNumber() const {
  return m_seconds >= 0 ? m_seconds / kSecondsPerDay : -((-m_seconds + kSecondsPerDay - 1) / kSecondsPerDay);
}

int Date::SecondOfDay() const {
  return static_cast<int>(m_seconds - DayNumber() * kSecondsPerDay);
}

std::chrono::year_month_day Date::Calendar() const {
  return std::chrono::year_month_day{kDayZero + days{DayNumber()}};
}

std::chrono::local_days Date::LocalDay() const {
  return std::chrono::local_days{Calendar()};
}

Date Date::AddDays(std::int64_t count) const {
  return Date(m_seconds + count * kSecondsPerDay);
}
Date Date::Midnight() const {
  return Date(DayNumber() * kSecondsPerDay);
}

std::string Format(const Date& date, std::string_view pattern, const platform::DateConventions& conventions) {
  if (pattern == "Short Time") pattern = conventions.shortTime;
  if (pattern == "Short Date") pattern = conventions.shortDate;
  const bool twelveHours = pattern.find("AM/PM") != std::string_view::npos;
  std::string out;
  bool afterHours = false;
  while (!pattern.empty()) {
    const Token* token = TokenAt(pattern);
    if (token == nullptr) {
      out += TakeLiteralPiece(pattern);
      continue;
    }
    pattern.remove_prefix(token->name.size());
    if (afterHours && token->name == "mm") token = &MinutesToken();
    afterHours = token->name.starts_with('h');
    out += token->write(date, conventions, twelveHours);
  }
  return out;
}

Date ParseMonthFirst(std::string_view text, const platform::DateConventions& conventions,
                     std::span<const platform::MonthNames> otherLanguages) {
  auto parts = text::Split(text, '/');
  for (std::string_view& part : parts) part = text::Trim(part);
  if (parts.size() != 2 && parts.size() != 3) FailNoDate(text);
  const auto month = MonthNumber(parts.front(), conventions, otherLanguages);
  const auto day = parts.size() == 3 ? Number(parts[1]) : 1;
  const auto year = Number(parts.back());
  if (!month || !day || !year) FailNoDate(text);
  return Date::Of(FullYear(*year, parts.back()), static_cast<unsigned>(*month), static_cast<unsigned>(*day));
}

DateParts SplitShortDate(std::string_view text, const platform::DateConventions& conventions) {
  DateParts parts;
  std::string_view pattern = conventions.shortDate;
  const std::string_view whole = text;
  std::string separator = TakeLiteral(pattern);
  for (int found = 0; found < 3; ++found) {
    if (pattern.empty() || !text.starts_with(separator)) FailNoDate(whole);
    text.remove_prefix(separator.size());
    const char kind = pattern[0];
    pattern.remove_prefix(std::min(pattern.find_first_not_of(kind), pattern.size()));
    separator = TakeLiteral(pattern);
    const auto end = separator.empty() ? text.size() : std::min(text.find(separator), text.size());
    const std::string_view value = text.substr(0, end);
    const auto number = kind == 'm' ? MonthNumber(value, conventions) : Number(value);
    if (!number) FailNoDate(whole);
    (kind == 'm' ? parts.month : kind == 'd' ? parts.day : parts.year) = *number;
    text.remove_prefix(end);
  }
  return parts;
}

namespace {

bool CanBeFolderName(const std::string& name) {
  return !name.empty() && name[0] != '.' && name.find_first_of("/\\\"") == std::string::npos &&
         text::Trim(name) == name;
}

bool CanNameFolders(const platform::MonthNames& names) {
  std::set<std::string> distinct;
  for (const std::string& name : names) distinct.insert(text::ToLower(name));
  return distinct.size() == names.size() && std::ranges::all_of(names, CanBeFolderName);
}

bool IsReadBack(const platform::DateConventions& conventions) {
  for (const Date& date : {Date::Of(2026, 11, 7), Date::Of(1998, 5, 30)}) {
    DateParts parts;
    try {
      parts = SplitShortDate(Format(date, "Short Date", conventions), conventions);
    } catch (const Error&) {
      return false;  // The text of the date was not even taken for one.
    }
    if (parts.month != static_cast<int>(date.Month()) || parts.day != static_cast<int>(date.Day()) ||
        parts.year % 100 != date.Year() % 100)
      return false;
  }
  return true;
}

}  // namespace

platform::DateConventions Usable(platform::DateConventions conventions) {
  if (!CanNameFolders(conventions.monthNames)) conventions.monthNames = English().monthNames;
  if (!IsReadBack(conventions)) conventions.shortDate = "yyyy-mm-dd";
  const std::string& time = conventions.shortTime;
  if (time.find('h') == std::string::npos || time.find("nn") == std::string::npos) conventions.shortTime = "hh:nn";
  return conventions;
}

}  // namespace dayvane
