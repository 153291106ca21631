// SPDX-License-Identifier: MIT
#include "settings/SettingsStore.h"

#include <cmath>
#include <limits>

#include "app/IgnoreErrors.h"
#include "base/Error.h"
#include "base/Text.h"

namespace dayvane::settings {

namespace {

constexpr const char* kMaker = "Korvath";
constexpr const char* kProduct = "Dayvane";

/// Opens a sub-key, added first where it is missing; nothing when it can be neither.
std::unique_ptr<platform::RegistryKey> OpenLevel(platform::RegistryKey& parent, const std::string& name) {
  try {
    parent.AddSubKey(name);
  } catch (const Error& error) {
    if (error.Number() != platform::kKeyExists) return nullptr;
  }
  std::unique_ptr<platform::RegistryKey> level;
  IgnoreErrors([&] { level = parent.OpenSubKey(name); });
  return level;
}

}  // namespace

std::string SubtreePath(const std::string& subtree) {
  return std::string("\\HKEY_CURRENT_USER") + "\\Software\\Korvath\\Dayvane\\" + subtree;
}

std::unique_ptr<platform::RegistryKey> OpenSubtree(platform::Registry& registry, const std::string& subtree) {
  return registry.KeyFromPath(SubtreePath(subtree));
}

void CreateSubtree(platform::Registry& registry, const std::string& subtree, const std::vector<NamedText>& values) {
  std::unique_ptr<platform::RegistryKey> key;
  IgnoreErrors([&] { key = registry.KeyFromRoot(platform::kHkeyCurrentUser)->OpenSubKey("Software"); });
  for (const std::string& level : {std::string(kMaker), std::string(kProduct), subtree}) {
    if (!key) return;
    key = OpenLevel(*key, level);
  }
  if (!key) return;
  platform::WritesTogether writes(registry);
  for (const NamedText& value : values) key->AddValue(value.name, value.text, platform::kRegistryString);
  writes.Store();
}

std::string FlagText(bool flag) {
  return flag ? "True" : "False";
}

std::int32_t WholeNumber(const std::string& text) {
  const auto number = text::ToInt32(text);
  if (!number) throw Error(kTypeMismatch, "Type mismatch: \"" + text + "\" is no whole number");
  return *number;
}

std::optional<std::int16_t> ToInt16(std::string_view text) {
  const auto number = text::ToNumber<double>(text::Trim(text));
  if (!number) return std::nullopt;
  const double rounded = std::nearbyint(*number);
  if (!(rounded >= std::numeric_limits<std::int16_t>::min() && rounded <= std::numeric_limits<std::int16_t>::max()))
    return std::nullopt;
  return static_cast<std::int16_t>(rounded);
}

std::optional<bool> ToFlag(std::string_view text) {
  if (text::CompareIgnoringCase(text, "True") == 0) return true;
  if (text::CompareIgnoringCase(text, "False") == 0) return false;
  if (const auto number = text::ToInt32(text)) return *number != 0;
  return std::nullopt;
}

Subtree::Subtree(platform::Registry& registry, const std::string& subtree, std::vector<NamedText> values)
    : m_values(std::move(values)), m_writes(registry) {
  if (IgnoreErrors([&] { m_key = OpenSubtree(registry, subtree); })) return;
  CreateSubtree(registry, subtree, m_values);
  m_key = OpenSubtree(registry, subtree);
}

template <class Result>
Result Subtree::Converted(std::size_t value, std::optional<Result> (*convert)(std::string_view)) const {
  const NamedText& setting = m_values.at(value);
  std::optional<Result> result;
  IgnoreErrors([&] { result = convert(m_key->Value(setting.name)); });
  if (result) return *result;
  IgnoreErrors([&] { m_key->AddValue(setting.name, setting.text, platform::kRegistryString); });
  return convert(setting.text).value_or(Result{});
}

std::int16_t Subtree::Number(std::size_t value) const {
  return Converted(value, ToInt16);
}
bool Subtree::Flag(std::size_t value) const {
  return Converted(value, ToFlag);
}

}  // namespace dayvane::settings
