// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Registry.h"

/// The program's settings: subtrees of named string values under the product key in the user's registry.
namespace dayvane::settings {

struct NamedText {
  std::string name;
  std::string text;
};

/// "\HKEY_CURRENT_USER\Software\Korvath\Dayvane\" + the subtree's name.
std::string SubtreePath(const std::string& subtree);

/// Opens a subtree by its path. Fails when it does not exist.
std::unique_ptr<platform::RegistryKey> OpenSubtree(platform::Registry& registry, const std::string& subtree);

/// Creates the product key's levels and the subtree where they are missing and adds the values. A level that cannot be
/// created ends it silently, because the caller opens the subtree next and that failure is the one to report.
void CreateSubtree(platform::Registry& registry, const std::string& subtree, const std::vector<NamedText>& values);

/// How a flag is stored: "True" or "False". Numbers are stored as text::NumberText writes them.
std::string FlagText(bool flag);

/// The number that an option's text is. Fails with kTypeMismatch when it is not a whole number.
std::int32_t WholeNumber(const std::string& text);

/// The value of a stored text, or nothing when it does not convert; fractions round to the even neighbour.
std::optional<std::int16_t> ToInt16(std::string_view text);
std::optional<bool> ToFlag(std::string_view text);

/// A subtree opened for reading, created with its default values first when it does not exist. A value that is missing
/// or does not convert is set back to its default, so that a later save finds it, and read as its default even where
/// that cannot be stored.
class Subtree {
 public:
  Subtree(platform::Registry& registry, const std::string& subtree, std::vector<NamedText> values);

  /// The converted text of the value with this place among the defaults. The defaults must convert.
  std::int16_t Number(std::size_t value) const;
  bool Flag(std::size_t value) const;

 private:
  template <class Result>
  Result Converted(std::size_t value, std::optional<Result> (*convert)(std::string_view)) const;

  std::vector<NamedText> m_values;
  platform::WritesTogether m_writes;
  std::unique_ptr<platform::RegistryKey> m_key;
};

}  // namespace dayvane::settings
