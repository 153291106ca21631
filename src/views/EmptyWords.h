// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace dayvane::controls {
class TreeView;
}

/// What a list says while it has no rows, so that nobody takes an empty pane for a broken one.
namespace dayvane::emptywords {

/// For the list of the tree's selected day: nothing is on record, no day is chosen, or nothing is left of the day.
std::string OfDay(const controls::TreeView& days);

std::string OfFavorites(std::int32_t threshold);

}  // namespace dayvane::emptywords
