// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "controls/TreeView.h"

/// Days in words, in the form of the user's language: "Friday, 20 November 2026".
namespace dayvane::widgets {

QString DayWords(std::chrono::local_days day);

/// What a node of the day tree stands for: its day in words, "November 2026", "2026", or nothing for the repository.
QString NodeWords(const controls::TreeNode* node);

}  // namespace dayvane::widgets
