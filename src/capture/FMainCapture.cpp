// SPDX-License-Identifier: MIT

// Capture: on every tick the Recent folder's new and rewritten shortcuts are filed under their days.

#include "app/IgnoreErrors.h"
#include "app/ReportErrors.h"
#include "base/Text.h"
#include "capture/CShortcut.h"
#include "capture/Filing.h"
#include "capture/ProgramShortcut.h"
#include "fs/Dir.h"
#include "resources/MResourceConstants.h"
#include "shell/FMain.h"

namespace dayvane {

void FMain::tmrMain_Timer() {
  IgnoreErrors([this] { PollRecentFolder(); });
  IgnoreErrors([this] { RefreshStatusBar(std::make_unique<CWaitCursor>(m_application)); });
}

void FMain::PollRecentFolder() {
  // A poll that fails ends where it failed: the timer stays off and the tray busy until capture is resumed.
  ReportErrors(m_application, kCheckingForDocuments, kName, "PollRecentFolder", [this] {
    const auto waitCursor = ShowWait();
    tmrMain.SetEnabled(false);
    tryMain.SetPicture(kBusyIcon);
    try {
      GetShortcuts();
    } catch (const std::exception&) {
      SaveCounts();  // What was filed before the failure is counted.
      throw;
    }
    SaveCounts();
    if (m_documentsChanged) {
      RefreshDaily();
      RefreshCalendar();
      RefreshFavorites();
      m_documentsChanged = false;
    }
    tryMain.SetPicture(kNormalIcon);
    tmrMain.SetEnabled(true);
  });
  ShowSuspendOrResume(tmrMain.Enabled());
}

void FMain::SaveCounts() {
  m_oFavorites->CountLate();
  // Now and not only at the end: what is saved needs no recounting after a kill.
  if (m_oFavorites->HasUnsavedCounts()) m_oFavorites->Save();
}

void FMain::GetShortcuts() {
  Assert(!text::Trim(m_recentFolder).empty(), ".GetShortcuts: Recent folder is missing");
  m_application.shellServices.RefreshRecentFolder();
  m_nearbyDays.Forget();
  const std::string prefix = m_recentFolder + "\\";
  CShortcut shortcut(m_application);
  for (const auto& entry : Dir(m_application.desktop.files, prefix + "*.lnk", DirKinds::Files)) {
    if (!m_filedShortcuts.IsUnchanged(prefix + entry.name)) {
      shortcut.SetFile(prefix + entry.name);
      ProcessShortcut(&shortcut);
    }
    m_application.desktop.windowing.ProcessPendingMessages();
  }
  m_application.shellServices.RecentFolderCaptured();
}

void FMain::ProcessShortcut(CShortcut* shortcut) {
  Demand(shortcut, ".ProcessShortcut: Shortcut is nothing");
  Demand(m_oFavorites, ".ProcessShortcut: Favorites object is nothing");
  const Date cutOff = m_application.Now().AddDays(-std::int64_t{m_purgeAge});
  auto& files = m_application.desktop.files;
  const std::string destination = filing::DayFolder(m_repository.DailyPath(), *shortcut) + "\\" + shortcut->FileName();
  const auto decision = filing::Decide(files, *shortcut, destination, cutOff);
  if (decision == filing::Decision::TooOld) return;
  if (decision == filing::Decision::Unchanged)
    return m_filedShortcuts.Remember(shortcut->File(), destination, shortcut->LastWritten());
  const bool isMissing = decision == filing::Decision::FirstOfTheDay;
  if (isMissing && m_nearbyDays.Hold(*shortcut)) return;
  filing::CreateDayFolder(files, m_repository.DailyPath(), *shortcut);
  // What lies there may be the shortcut of a program with the document's name, and then the document is not filed yet.
  const bool isFirst = isMissing || programshortcut::MoveAside(m_application, destination, shortcut->TargetFile());
  if (isFirst) m_oFavorites->WillCount(destination);
  File(*shortcut, destination);
  if (isFirst) m_oFavorites->ProcessShortcut(shortcut);
  m_documentsChanged = true;
}

void FMain::File(CShortcut& shortcut, const std::string& destination) {
  m_application.desktop.files.Copy(shortcut.File(), destination);
  shortcut.SetCopy(destination);
  shortcut.CreateExecutableShortcut();
}

}  // namespace dayvane
