// SPDX-License-Identifier: MIT

// The document behind a row of either list: opened, its link removed, its folder shown, its day purged.

#include <limits>

#include "app/IgnoreErrors.h"
#include "app/ReportErrors.h"
#include "base/Text.h"
#include "capture/CShortcut.h"
#include "shell/FMain.h"
#include "views/FavoritesTable.h"
#include "views/Keys.h"
#include "views/NewestLink.h"

namespace dayvane {

using views::PathOf;

namespace {

/// The results that are reported to the user as an operating system error.
bool IsSystemError(int result) {
  return result == 0 || result == 11 || (result >= 26 && result <= 30);
}

}  // namespace

void FMain::OpenDocument(const controls::ListItem* item) {
  ReportErrors(m_application, kOpeningDocument, kName, "OpenDocument", [&] {
    Assert(!text::Trim(m_recentFolder).empty(), ".OpenDocument: Recent folder is missing");
    // A copy: while a question waits, the next capture may fill the lists anew.
    const controls::ListItem document = Demand(item, ".OpenDocument: Item is Nothing");
    CShortcut shortcut(m_application);
    ReadShortcut(shortcut, document.key);
    const ShellServices& shell = m_application.shellServices;
    const int result = shortcut.OpenDocument();
    bool remove = false;
    if (result == platform::kSeFileNotFound)
      remove = AskToRemove(kTheDocument, shell.DisplayPath(shortcut.TargetFile()), kTheDocumentWasNotFound);
    else if (result == platform::kSePathNotFound)
      remove =
          AskToRemove(kThePath, shell.DisplayPath(shell.SplitPath(shortcut.TargetFile()).folder), kThePathWasNotFound);
    else if (result == platform::kSeNoAssociation)
      m_application.Tell(ResourceString(kDocumentsOfThisType) + "\r\n" + ResourceString(kAreNotAssociated));
    else if (IsSystemError(result))
      m_application.Tell(ResourceString(kOperatingSystemError));
    else
      PutBackIntoRecent(shortcut);
    if (remove) RemoveLink(&document);
  });
}

bool FMain::AskToRemove(StringId before, const std::string& what, StringId after) {
  const std::string question = ResourceString(before) + what + "\r\n" + ResourceString(after);
  return m_application.Ask(question, platform::MessageIcon::Question);
}

void FMain::ReadShortcut(CShortcut& shortcut, const std::string& key) {
  const std::string path = PathOf(key);
  if (lvwFavorites.Find(key) == nullptr) return shortcut.SetFile(path);
  // A favorite is known by its first filing, whose day may be purged long since: it opens as long as its document does.
  if (IgnoreErrors([&] { shortcut.SetFile(path); }) && !shortcut.TargetFile().empty()) return;
  const std::string document = DocumentOf(path);
  if (document.empty()) return shortcut.SetFile(path);
  const std::string newest = NewestLinkTo(m_application, m_repository.DailyPath(), document);
  if (newest.empty())
    shortcut.SetMissingFile(path, document);
  else
    shortcut.SetFile(newest);
}

std::string FMain::DocumentOf(const std::string& filedShortcut) const {
  for (const favorites::Record& record : m_oFavorites->GetFavorites())
    if (favorites::TextOf(record[favorites::kShortcutFile]) == filedShortcut)
      return favorites::TextOf(record[favorites::kFolder]) + "\\" +
             favorites::TextOf(record[favorites::kTargetFileName]);
  return {};
}

void FMain::PutBackIntoRecent(const CShortcut& shortcut) {
  const std::string path = m_recentFolder + "\\" + shortcut.FileName();
  if (shortcut.IsMissing())
    return m_application.shellServices.CreateShortcut(path, shortcut.TargetFile(), shortcut.WorkingDirectory());
  auto& files = m_application.desktop.files;
  const std::string bytes = files.Read(shortcut.File(), std::numeric_limits<std::size_t>::max()).bytes;
  files.Replace(path, bytes);
}

void FMain::RemoveLink(const controls::ListItem* item) {
  ReportErrors(m_application, kOpeningDocument, kName, "RemoveLink", [&] {
    Assert(m_oDaily != nullptr, ".RemoveLink: Daily object is nothing");
    Assert(m_oFavorites != nullptr, ".RemoveLink: Favorites object is nothing");
    Assert(!text::Trim(m_recentFolder).empty(), ".RemoveLink: Recent folder is missing");
    auto& files = m_application.desktop.files;
    const std::string key = Demand(item, ".RemoveLink: Item is nothing").key;
    const std::string path = PathOf(key);
    IgnoreErrors([&] { files.Delete(path); });
    IgnoreErrors([&] { files.Delete(m_recentFolder + "\\" + m_application.shellServices.SplitPath(path).fileName); });
    // From the Favorites view the day that is shown need not be the document's.
    if (lvwDaily.Find(key) != nullptr) m_oDaily->RemoveDocument(key);
    if (m_oFavorites->RemoveDocument(key)) RebuildFavorites();
    if (m_repository.PurgeEmptyFolders()) {
      RefreshDaily();
      RefreshCalendar();
    }
    FollowSelection();
  });
}

void FMain::PurgeDay(const controls::TreeNode* node) {
  Assert(m_oFavorites != nullptr, ".PurgeDay: Favorites object is nothing");
  m_repository.PurgeDay(PathOf(Demand(node, ".PurgeDay: Node is nothing").key));
  RefreshDaily();
  RefreshCalendar();
  RebuildFavorites();
}

void FMain::Explore() {
  ReportErrors(m_application, kExploringFolder, kName, "Explore", [this] {
    Assert(m_oDaily != nullptr, ".Explore: Daily object is nothing");
    m_oDaily->Explore();
  });
}

void FMain::OpenFolder() {
  ReportErrors(m_application, kOpeningFolder, kName, "OpenFolder", [this] {
    Assert(m_oDaily != nullptr, ".OpenFolder: Daily object is nothing");
    m_oDaily->OpenFolder();
  });
}

}  // namespace dayvane
