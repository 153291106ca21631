// SPDX-License-Identifier: MIT
#include "windows/WindowsDateConventions.h"

#include <utility>
#include <vector>

#include "app/Date.h"
#include "base/Text.h"
#include "windows/files/WideText.h"
#include "windows/files/Win32.h"

namespace dayvane {

namespace {

using platform::DateConventions;

/// A pattern of the system's (GetDateFormatEx) taken apart: runs of one letter, and literal text.
struct Piece {
  wchar_t letter = 0;  ///< 0 in a literal
  std::size_t count = 0;
  std::wstring literal;
};

/// Takes a quoted text, which starts at `position`. An apostrophe in it is doubled, and "''" alone is one.
std::wstring TakeQuoted(const std::wstring& pattern, std::size_t& position) {
  std::wstring text;
  for (++position; position < pattern.size(); ++position) {
    if (pattern[position] != L'\'')
      text += pattern[position];
    else if (position + 1 < pattern.size() && pattern[position + 1] == L'\'')
      text += pattern[position++];
    else
      break;
  }
  ++position;
  return text;
}

std::vector<Piece> TakeApart(const std::wstring& pattern, std::wstring_view letters) {
  std::vector<Piece> pieces;
  const auto literal = [&](const std::wstring& text) {
    if (pieces.empty() || pieces.back().letter != 0) pieces.emplace_back();
    pieces.back().literal += text;
  };
  for (std::size_t i = 0; i < pattern.size();) {
    const wchar_t letter = pattern[i];
    if (letter == L'\'') {
      literal(TakeQuoted(pattern, i));
    } else if (letters.find(letter) != std::wstring_view::npos) {
      const std::size_t start = i;
      while (i < pattern.size() && pattern[i] == letter) ++i;
      pieces.push_back({letter, i - start, {}});
    } else {
      literal(std::wstring(1, letter));
      ++i;
    }
  }
  return pieces;
}

/// The text as a literal of the program's own patterns, in which letters may be fields.
std::string Literal(const std::wstring& wide) {
  std::string out;
  std::string quoted;
  const auto flush = [&] {
    if (!quoted.empty()) out += "'" + quoted + "'";
    quoted.clear();
  };
  for (const char c : files::FromWide(wide).value_or("")) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    if (letter) {
      quoted += c;
      continue;
    }
    flush();
    out += c == '\'' ? "''" : std::string(1, c);
  }
  flush();
  return out;
}

/// "h", "hh", "nn" or "AM/PM" for a field of the time; nothing for what a short time leaves out.
std::string TimeField(const Piece& piece) {
  switch (piece.letter) {
    case L'h':
    case L'H':
      return piece.count > 1 ? "hh" : "h";
    case L'm':
      return "nn";
    case L't':
      return "AM/PM";
    default:
      return {};
  }
}

std::wstring Setting(const wchar_t* localeName, LCTYPE type) {
  wchar_t buffer[256];
  const int length = GetLocaleInfoEx(localeName, type, buffer, static_cast<int>(std::size(buffer)));
  return length > 1 ? std::wstring(buffer, static_cast<std::size_t>(length) - 1) : std::wstring();
}

std::string TextSetting(const wchar_t* localeName, LCTYPE type) {
  return std::string(text::Trim(files::FromWide(Setting(localeName, type)).value_or("")));
}

/// In the form in which a name stands alone.
platform::MonthNames MonthNames(const wchar_t* localeName) {
  platform::MonthNames names;
  for (std::size_t i = 0; i < names.size(); ++i)
    names[i] = TextSetting(localeName, LOCALE_SMONTHNAME1 + static_cast<LCTYPE>(i));
  return names;
}

/// The system counts from Monday as 0.
int FirstDayOfWeek(const wchar_t* localeName) {
  const auto day = text::ToInt32(TextSetting(localeName, LOCALE_IFIRSTDAYOFWEEK));
  return day && *day >= 0 && *day <= 6 ? *day + 1 : DateConventions().firstDayOfWeek;
}

}  // namespace

std::string ShortDatePattern(const std::wstring& systemPattern) {
  std::string out;
  for (const Piece& piece : TakeApart(systemPattern, L"dMyg")) {
    if (piece.letter == 0) {
      out += Literal(piece.literal);
      continue;
    }
    const bool isYear = piece.letter == L'y';
    if (piece.letter == L'g' || (isYear ? piece.count != 2 && piece.count != 4 : piece.count > 2)) return {};
    out += std::string(piece.count, piece.letter == L'M' ? 'm' : static_cast<char>(piece.letter));
  }
  return out;
}

std::string ShortTimePattern(const std::wstring& systemPattern) {
  std::string out;
  std::string separator;
  for (const Piece& piece : TakeApart(systemPattern, L"hHmst")) {
    if (piece.letter == 0) {
      separator = Literal(piece.literal);
      continue;
    }
    const std::string field = TimeField(piece);
    if (!field.empty()) out += separator + field;
    separator.clear();
  }
  return std::string(text::Trim(out + separator));
}

DateConventions DateConventionsOf(const wchar_t* localeName) {
  DateConventions conventions;
  conventions.monthNames = MonthNames(localeName);
  conventions.shortDate = ShortDatePattern(Setting(localeName, LOCALE_SSHORTDATE));
  conventions.shortTime = ShortTimePattern(Setting(localeName, LOCALE_SSHORTTIME));
  conventions.am = text::ToUpper(TextSetting(localeName, LOCALE_S1159));
  conventions.pm = text::ToUpper(TextSetting(localeName, LOCALE_S2359));
  conventions.firstDayOfWeek = FirstDayOfWeek(localeName);
  return Usable(std::move(conventions));
}

}  // namespace dayvane
