#pragma once

#include <map>
#include <string>
#include <string_view>

#include "base/Text.h"

namespace dayvane::registry {

/// Names of keys and values are the same whatever their letter case, as in any registry.
struct IgnoringCase {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const { return text::CompareIgnoringCase(a, b) < 0; }
};

using SettingsValues = std::map<std::string, std::string, IgnoringCase>;

/// Values by the path of their key, "Software\Korvath\Dayvane\Options".
using SettingsKeys = std::map<std::string, SettingsValues, IgnoringCase>;

struct ParsedSettings {
  SettingsKeys keys;
  bool damaged = false;  ///< the text holds lines that mean nothing
};

/// The settings in the form in which they are kept, which a person can read and edit:
///
///     [Software\Korvath\Dayvane\Options]
///     Favorites Threshold=3
///
/// UTF-8, a line for each value below the path of its key. Blanks around a name, a text or a line, empty lines and
/// lines that start with ";" or "#" mean nothing. The value without a name is "@". What cannot stand for itself is
/// written as \\, \n, \r, \t, \s (a blank at either end) or \xHH (one byte, hexadecimal); any other "\" is itself.
///
/// A value given twice has the later text. A line that is none of these is skipped and counts as damage, and so are
/// the values below a key's line that cannot be read: better missing than under another key.
ParsedSettings ParseSettings(std::string_view text);

/// Parsing the result gives the same settings back, but for keys without values, which are left out.
std::string WriteSettings(const SettingsKeys& keys);

}  // namespace dayvane::registry
