// SPDX-License-Identifier: MIT
#include "linux/LinuxDateConventions.h"

#include <QString>
#include <utility>
#include <vector>

#include "app/Date.h"
#include "base/Text.h"

namespace dayvane {

namespace {

using platform::DateConventions;

/// A pattern of the toolkit's (QLocale::toString) taken apart: runs of one letter, and literal text.
struct Piece {
  QChar letter;  ///< null in a literal
  int count = 0;
  QString literal;
};

/// Takes a quoted text, which starts at `position`, and returns what it stands for; '' is one apostrophe.
QString TakeQuoted(const QString& pattern, int& position) {
  const int start = ++position;
  while (position < pattern.size() && pattern[position] != u'\'') ++position;
  QString text = position == start ? QStringLiteral("'") : pattern.mid(start, position - start);
  ++position;
  return text;
}

std::vector<Piece> TakeApart(const QString& pattern, const QString& letters) {
  std::vector<Piece> pieces;
  const auto literal = [&](const QString& text) {
    if (pieces.empty() || !pieces.back().letter.isNull()) pieces.emplace_back();
    pieces.back().literal += text;
  };
  for (int i = 0; i < pattern.size();) {
    const QChar letter = pattern[i];
    if (letter == u'\'') {
      literal(TakeQuoted(pattern, i));
    } else if (letters.contains(letter)) {
      const int start = i;
      while (i < pattern.size() && pattern[i] == letter) ++i;
      pieces.push_back({letter, i - start, {}});
    } else {
      literal(letter);
      ++i;
    }
  }
  return pieces;
}

/// The text as a literal of the program's own patterns, in which letters may be fields.
std::string Literal(const QString& text) {
  std::string out;
  std::string quoted;
  const auto flush = [&] {
    if (!quoted.empty()) out += "'" + quoted + "'";
    quoted.clear();
  };
  for (const char c : text.toStdString()) {
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

/// Empty where the program has no form for a field.
std::string ShortDate(const QString& pattern) {
  std::string out;
  for (const Piece& piece : TakeApart(pattern, QStringLiteral("dMy"))) {
    if (piece.letter.isNull()) {
      out += Literal(piece.literal);
      continue;
    }
    const bool isYear = piece.letter == u'y';
    if (isYear ? piece.count != 2 && piece.count != 4 : piece.count > 2) return {};
    out += std::string(static_cast<std::size_t>(piece.count), static_cast<char>(piece.letter.toLower().unicode()));
  }
  return out;
}

/// "h", "hh", "nn" or "AM/PM" for a field of the time; nothing for what a short time leaves out (seconds, the zone).
std::string TimeField(const Piece& piece) {
  switch (piece.letter.toLower().unicode()) {
    case u'h':
      return piece.count > 1 ? "hh" : "h";
    case u'm':
      return "nn";
    case u'a':
    case u'b':  // the time of day, which the toolkit does not know either
      return "AM/PM";
    default:
      return {};
  }
}

std::string ShortTime(QString pattern) {
  // Both letters of a marker for the half of the day are one field.
  for (const char* marker : {"AP", "ap", "Ap", "aP"}) pattern.replace(QLatin1String(marker), QLatin1String("a"));
  std::string out;
  std::string separator;
  for (const Piece& piece : TakeApart(pattern, QStringLiteral("hHmszatAB"))) {
    if (piece.letter.isNull()) {
      separator = Literal(piece.literal);
      continue;
    }
    const std::string field = TimeField(piece);
    if (!field.empty()) out += separator + field;
    separator.clear();
  }
  return std::string(text::Trim(out + separator));
}

platform::MonthNames MonthNames(const QLocale& locale) {
  platform::MonthNames names;
  for (std::size_t i = 0; i < names.size(); ++i)
    names[i] = locale.standaloneMonthName(static_cast<int>(i) + 1, QLocale::LongFormat).trimmed().toStdString();
  return names;
}

}  // namespace

DateConventions DateConventionsOf(const QLocale& locale) {
  DateConventions conventions;
  conventions.monthNames = MonthNames(locale);
  conventions.shortDate = ShortDate(locale.dateFormat(QLocale::ShortFormat));
  conventions.shortTime = ShortTime(locale.timeFormat(QLocale::ShortFormat));
  conventions.am = locale.toUpper(locale.amText()).toStdString();
  conventions.pm = locale.toUpper(locale.pmText()).toStdString();
  conventions.firstDayOfWeek = locale.firstDayOfWeek();
  return Usable(std::move(conventions));
}

}  // namespace dayvane
