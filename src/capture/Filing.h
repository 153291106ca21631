// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "app/Date.h"
#include "capture/CShortcut.h"
#include "platform/FileSystem.h"

/// What capture decides about one shortcut, without a window.
namespace dayvane::filing {

enum class Decision {
  TooOld,         ///< last written before the cut-off: a purge must not be undone
  FirstOfTheDay,  ///< no copy of that name lies in the day's folder
  Replace,        ///< the copy is of another moment: the document was opened again
  Unchanged,      ///< the usual answer: filed already
};

/// A shortcut written exactly at the cut-off is filed.
Decision Decide(platform::FileSystem& files, const CShortcut& shortcut, const std::string& destination,
                const Date& cutOff);

/// The folder of the shortcut's day below the repository's root.
std::string DayFolder(const std::string& dailyPath, const CShortcut& shortcut);

/// Makes the folders of the shortcut's day below the repository's root; those that exist are left alone. Fails with
/// kPathFileAccess when one of them is not a folder: a link there could lead out of the repository.
void CreateDayFolder(platform::FileSystem& files, const std::string& dailyPath, const CShortcut& shortcut);

}  // namespace dayvane::filing
