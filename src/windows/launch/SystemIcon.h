// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Text.h"

/// The name that an icon of the system has in a platform::Picture: its place in the system's image list, "system:12".
/// What looks alike has the same place, so that it is kept once. widgets/Icons makes a picture of it.
namespace dayvane::launch {

inline constexpr std::string_view kSystemIconPrefix = "system:";

inline std::string SystemIconName(int index) {
  return std::string(kSystemIconPrefix) + std::to_string(index);
}

/// The place that a name tells; nothing for the name of anything else.
inline std::optional<int> SystemIconIndex(std::string_view name) {
  if (!name.starts_with(kSystemIconPrefix)) return std::nullopt;
  const auto index = text::ToNumber<int>(name.substr(kSystemIconPrefix.size()));
  return index && *index >= 0 ? index : std::nullopt;
}

}  // namespace dayvane::launch
