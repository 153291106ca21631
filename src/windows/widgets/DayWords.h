// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "controls/TreeView.h"

/// Days in words, in the form of the user's language: "Friday, 20 November 2026".
namespace dayvane::widgets {

/// A day that the system's words do not reach is told by its numbers.
std::string DayWords(std::chrono::local_days day);

/// What a node of the day tree stands for: its day in words, "November 2026", "2026", or nothing for the repository.
std::string NodeWords(const controls::TreeNode* node);

}  // namespace dayvane::widgets
