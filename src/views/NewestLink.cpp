// SPDX-License-Identifier: MIT
#include "views/NewestLink.h"

#include <algorithm>
#include <vector>

#include "app/IgnoreErrors.h"
#include "base/Text.h"
#include "capture/CShortcut.h"
#include "fs/Dir.h"
#include "views/DailyTree.h"

namespace dayvane {

namespace {

/// Walks the repository from the newest day back. What cannot be read is passed over.
class NewestLinkSearch {
 public:
  NewestLinkSearch(Application& application, const std::string& document, std::size_t most)
      : m_application(application), m_document(document), m_left(most), m_shortcut(application) {}

  std::string SearchFolder(const std::string& folder, int level) {
    if (level > dailytree::kDayLevel) return SearchDay(folder);
    for (const std::string& name : NewestFirst(folder, level)) {
      std::string found = SearchFolder(folder + "\\" + name, level + 1);
      if (!found.empty() || m_left == 0) return found;
    }
    return {};
  }

 private:
  std::vector<std::string> NewestFirst(const std::string& folder, int level) {
    std::vector<std::string> names;
    IgnoreErrors([&] {
      auto& files = m_application.desktop.files;
      const std::string listed = dailytree::ListedFolder(files, folder, level);
      for (const auto& entry : Dir(files, listed + "\\*.*", DirKinds::FilesAndFolders))
        if (entry.kind == platform::EntryKind::Folder) names.push_back(entry.name);
    });
    dailytree::Arrange(names, level, m_application.desktop.dates, m_application.monthLanguages);
    std::reverse(names.begin(), names.end());
    return names;
  }

  std::string SearchDay(const std::string& folder) {
    std::vector<platform::DirectoryEntry> entries;
    IgnoreErrors([&] { entries = Dir(m_application.desktop.files, folder + "\\*.lnk", DirKinds::Files); });
    for (const auto& entry : entries) {
      if (m_left == 0) return {};
      --m_left;
      std::string path = folder + "\\" + entry.name;
      if (LeadsToDocument(path)) return path;
    }
    return {};
  }

  bool LeadsToDocument(const std::string& path) {
    return IgnoreErrors([&] { m_shortcut.SetFile(path); }) &&
           text::CompareIgnoringCase(m_shortcut.TargetFile(), m_document) == 0;
  }

  Application& m_application;
  const std::string& m_document;
  std::size_t m_left;
  CShortcut m_shortcut;
};

}  // namespace

std::string NewestLinkTo(Application& application, const std::string& dailyPath, const std::string& document,
                         std::size_t most) {
  return NewestLinkSearch(application, document, most).SearchFolder(dailyPath, dailytree::kYearLevel);
}

}  // namespace dayvane
