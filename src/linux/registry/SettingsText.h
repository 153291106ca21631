// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
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

/// The text of a value; null when there is none.
const std::string* FindSetting(const SettingsKeys& keys, std::string_view path, std::string_view name);

/// The settings in the form in which they are kept, one of GLib's key files, which a person can read and edit:
///
///     # often
///     [Software\Korvath\Dayvane\Options]
///     Timer Interval=5
///
/// UTF-8, a line for each value below the path of its key. Blanks around a name or a text, empty lines and lines that
/// start with ";" or "#" mean nothing. The value without a name is "@"; one given twice has the later text.
///
/// GLib's own escapes are too few for any text and for names. What cannot stand for itself is written as \\, \n, \r,
/// \t, \s (a blank at either end) or \xHH (one byte, hexadecimal); any other "\" is itself.
///
/// Any other line makes the whole text damaged: nothing is returned.
std::optional<SettingsKeys> ParseSettings(std::string_view text);

/// The settings with the comments, the empty lines and the order of the text that they came from. Parsing the result
/// gives the same settings back, except keys without values, which are left out.
std::string WriteSettings(const SettingsKeys& keys, std::string_view old = {});

}  // namespace dayvane::registry
