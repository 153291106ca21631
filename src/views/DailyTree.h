// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/DateConventions.h"
#include "platform/FileSystem.h"

/// How the repository becomes a tree: levels 1 (root), 2 (years), 3 (months) and 4 (days).
namespace dayvane::dailytree {

inline constexpr int kYearLevel = 2;
inline constexpr int kMonthLevel = 3;
inline constexpr int kDayLevel = 4;

/// The folder to list for the nodes of a level: the folder itself, except that the repository, which holds the years,
/// may be a symbolic link and is then the folder that it leads to.
std::string ListedFolder(platform::FileSystem& files, const std::string& folder, int level);

/// The names of a folder that become nodes of a level: all but those that end in ".lnk", in exactly these letters.
std::vector<std::string> NodeNames(platform::FileSystem& files, const std::string& folder, int level);

/// Puts names in the order of their level: months by the calendar, English, the user's own or of one of the other
/// languages, what else there is after them by text; days by text; years as they come.
void Arrange(std::vector<std::string>& names, int level, const platform::DateConventions& dates,
             std::span<const platform::MonthNames> otherLanguages);

}  // namespace dayvane::dailytree
