// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "views/FavoritesTable.h"

/// The text form of "Favorites.dat": UTF-8, one record of eight values a line, lines ended by CR LF, values separated
/// by commas. A text stands between double quotation marks as it is, without escapes (no path of the program holds
/// one); numbers are plain decimals; a date-time stands between number signs, #1998-05-12 14:03:27#, without its time
/// when that is zero and without its date when that is; a value never set is nothing between two commas.
namespace dayvane::favorites {

std::string FormatRecord(const Record& record);

/// Reads values one after the other. A line break separates values as a comma does, so a record may stand on several
/// lines. Values keep the type they are written with; a text between number signs that is not a date stays a text.
class ValueReader {
 public:
  explicit ValueReader(std::string_view text) : m_rest(text) {}

  bool AtEnd() const { return m_rest.empty(); }

  /// Fails with kInputPastEnd at the end.
  Value Next();

 private:
  Value Quoted();
  Value Unquoted();
  void SkipBlanks();
  void SkipSeparator();

  std::string_view m_rest;
};

}  // namespace dayvane::favorites
