#include "views/DailyTree.h"

#include <algorithm>

#include "base/Text.h"
#include "fs/Dir.h"

namespace dayvane::dailytree {

namespace {

/// "01" … "12" for a month's name, nothing for another: a name that is no month sorts by its own text.
std::string MonthPrefix(const std::string& name, const platform::DateConventions& dates) {
  static const platform::DateConventions kEnglish;
  for (const auto* months : {&kEnglish.monthNames, &dates.monthNames})
    for (std::size_t i = 0; i < months->size(); ++i)
      if ((*months)[i] == name) return text::Padded(static_cast<int>(i) + 1, 2);
  return {};
}

}  // namespace

std::vector<std::string> NodeNames(platform::FileSystem& files, const std::string& folder, int level) {
  std::vector<std::string> names;
  const std::string listed = level == kYearLevel ? files.Resolve(folder) : folder;
  for (auto& entry : Dir(files, listed + "\\" + "*.*", DirKinds::FilesAndFolders))
    if (!entry.name.ends_with(".lnk")) names.push_back(std::move(entry.name));
  return names;
}

void Arrange(std::vector<std::string>& names, int level, const platform::DateConventions& dates) {
  if (level == kMonthLevel)
    std::sort(names.begin(), names.end(), [&](const std::string& a, const std::string& b) {
      return MonthPrefix(a, dates) + a < MonthPrefix(b, dates) + b;
    });
  if (level == kDayLevel) std::sort(names.begin(), names.end());
}

}  // namespace dayvane::dailytree
