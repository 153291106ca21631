// SPDX-License-Identifier: MIT
#include "windows/help/ColumnWidths.h"

#include <algorithm>
#include <cstdint>

namespace dayvane::help {

namespace {

/// `whole` * `part` / `all`, without going over the end of an int between.
int Share(int whole, std::int64_t part, std::int64_t all) {
  return all == 0 ? 0 : static_cast<int>(whole * part / all);
}

}  // namespace

std::vector<int> ColumnWidths(const std::vector<ColumnNeed>& needs, int room) {
  room = std::max(room, 0);
  std::int64_t least = 0;
  std::int64_t whole = 0;
  for (const ColumnNeed& need : needs) {
    least += need.least;
    whole += need.whole;
  }
  std::vector<int> widths;
  for (const ColumnNeed& need : needs) {
    int width = need.whole;
    if (least > room)
      width = Share(room, need.least, least);
    else if (whole > room)
      width = need.least + Share(room - static_cast<int>(least), need.whole - need.least, whole - least);
    widths.push_back(std::max(width, 1));
  }
  return widths;
}

}  // namespace dayvane::help
