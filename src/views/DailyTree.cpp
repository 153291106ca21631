// SPDX-License-Identifier: MIT
#include "views/DailyTree.h"

#include <algorithm>

#include "base/Text.h"
#include "fs/Dir.h"

namespace dayvane::dailytree {

namespace {

std::string MonthPrefix(const std::string& name, const platform::MonthNames& months) {
  const auto found = std::find(months.begin(), months.end(), name);
  return found == months.end() ? std::string() : text::Padded(found - months.begin() + 1, 2);
}

/// "01" … "12" for a month's name, empty for any other name, which sorts by its own text.
std::string MonthPrefix(const std::string& name, const platform::DateConventions& dates,
                        std::span<const platform::MonthNames> otherLanguages) {
  static const platform::DateConventions kEnglish;
  std::string prefix = MonthPrefix(name, kEnglish.monthNames);
  if (prefix.empty()) prefix = MonthPrefix(name, dates.monthNames);
  for (const auto& months : otherLanguages)
    if (prefix.empty()) prefix = MonthPrefix(name, months);
  return prefix;
}

}  // namespace

std::string ListedFolder(platform::FileSystem& files, const std::string& folder, int level) {
  return level == kYearLevel ? files.Resolve(folder) : folder;
}

std::vector<std::string> NodeNames(platform::FileSystem& files, const std::string& folder, int level) {
  std::vector<std::string> names;
  for (auto& entry : Dir(files, ListedFolder(files, folder, level) + "\\" + "*.*", DirKinds::FilesAndFolders))
    if (!entry.name.ends_with(".lnk")) names.push_back(std::move(entry.name));
  return names;
}

void Arrange(std::vector<std::string>& names, int level, const platform::DateConventions& dates,
             std::span<const platform::MonthNames> otherLanguages) {
  const auto sortText = [&](const std::string& name) { return MonthPrefix(name, dates, otherLanguages) + name; };
  if (level == kMonthLevel) std::ranges::sort(names, {}, sortText);
  if (level == kDayLevel) std::sort(names.begin(), names.end());
}

}  // namespace dayvane::dailytree
