// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <vector>

#include "views/FavoritesValue.h"

namespace dayvane::favorites {

/// Fields of a record, in the order of the data file.
enum Field : std::size_t {
  kDaysAccessed = 0,
  kLastAccessed,
  kShortcutFile,
  kTargetFileName,
  kFolder,
  kType,
  kIconFile,
  kIconIndex,
  kFieldCount
};

using Record = std::array<Value, kFieldCount>;
using Table = std::vector<Record>;

}  // namespace dayvane::favorites
