// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace dayvane::help {

/// What a column needs, in any unit of length.
struct ColumnNeed {
  int least = 0;  ///< for its longest word
  int whole = 0;  ///< to break no line
};

/// The columns of a table that has so much room: each as wide as its texts where all of them fit, else what is missing
/// is taken from those that can break their lines. They take more than the room only where `room` is not positive.
std::vector<int> ColumnWidths(const std::vector<ColumnNeed>& needs, int room);

}  // namespace dayvane::help
