// SPDX-License-Identifier: MIT
#include "capture/Filing.h"

#include "app/IgnoreErrors.h"
#include "base/Error.h"
#include "fs/Dir.h"

namespace dayvane::filing {

Decision Decide(platform::FileSystem& files, const CShortcut& shortcut, const std::string& destination,
                const Date& cutOff) {
  if (shortcut.Modified() < cutOff) return Decision::TooOld;
  const auto copy = files.Status(destination);
  if (!copy) return Decision::FirstOfTheDay;
  return copy->written == shortcut.LastWritten() ? Decision::Unchanged : Decision::Replace;
}

std::string DayFolder(const std::string& dailyPath, const CShortcut& shortcut) {
  return dailyPath + "\\" + shortcut.Year() + "\\" + shortcut.Month() + "\\" + shortcut.Day();
}

void CreateDayFolder(platform::FileSystem& files, const std::string& dailyPath, const CShortcut& shortcut) {
  if (FolderExists(files, DayFolder(dailyPath, shortcut))) return;
  std::string folder = dailyPath;
  for (const std::string* part : {&shortcut.Year(), &shortcut.Month(), &shortcut.Day()}) {
    folder += "\\" + *part;
    if (IgnoreErrors([&] { files.CreateFolder(folder); })) continue;
    if (!FolderExists(files, folder)) throw Error(kPathFileAccess, "No folder to file into", folder);
  }
}

}  // namespace dayvane::filing
