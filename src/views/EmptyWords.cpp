// SPDX-License-Identifier: MIT
#include "views/EmptyWords.h"

#include "controls/TreeView.h"

namespace dayvane::emptywords {

std::string OfDay(const controls::TreeView& days) {
  const bool hasRecord = !days.Roots().empty() && !days.Roots().front()->children.empty();
  if (!hasRecord) return "Nothing is on record yet.\nDocuments that you open from now on are listed here, day by day.";
  const controls::TreeNode* node = days.SelectedItem();
  if (node == nullptr || !node->day) return "No day is chosen.\nClick one in the calendar or in the tree.";
  return "No documents are left on this day.";
}

std::string OfFavorites(std::int32_t threshold) {
  if (threshold <= 1) return "No document has been opened yet.";
  return "No document has been opened on " + std::to_string(threshold) + " days or more yet.";
}

}  // namespace dayvane::emptywords
