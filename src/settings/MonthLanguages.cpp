// SPDX-License-Identifier: MIT
#include "settings/MonthLanguages.h"

#include <algorithm>
#include <optional>
#include <string>

#include "app/IgnoreErrors.h"
#include "base/Text.h"
#include "settings/SettingsStore.h"

namespace dayvane::settings {

namespace {

using platform::MonthNames;

constexpr const char* kSubtree = "Month Names";
constexpr char kSeparator = '/';
constexpr int kMostLanguages = 100;  ///< what a person's settings never reach

std::string ToText(const MonthNames& names) {
  std::string text = names.front();
  for (std::size_t i = 1; i < names.size(); ++i) text += kSeparator + names[i];
  return text;
}

std::optional<MonthNames> ToMonthNames(const std::string& text) {
  const auto parts = text::Split(text, kSeparator);
  MonthNames names;
  if (parts.size() != names.size() || std::ranges::find(parts, "") != parts.end()) return std::nullopt;
  std::ranges::copy(parts, names.begin());
  return names;
}

}  // namespace

std::vector<MonthNames> RememberMonthNames(platform::Registry& registry, const MonthNames& users) {
  std::vector<MonthNames> languages;
  int number = 1;
  // The first number that has no value ends the reading.
  IgnoreErrors([&] {
    for (const auto key = OpenSubtree(registry, kSubtree); number < kMostLanguages; ++number)
      if (const auto names = ToMonthNames(key->Value(std::to_string(number)))) languages.push_back(*names);
  });
  if (std::find(languages.begin(), languages.end(), users) != languages.end()) return languages;
  languages.push_back(users);
  IgnoreErrors([&] { CreateSubtree(registry, kSubtree, {{std::to_string(number), ToText(users)}}); });
  return languages;
}

}  // namespace dayvane::settings
