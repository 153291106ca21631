// SPDX-License-Identifier: MIT
#include "shell/FMain.h"

#include <algorithm>
#include <limits>

#include "app/ReportErrors.h"
#include "settings/COptions.h"

namespace dayvane {

FMain::FMain(Application& application, CRepository& repository)
    : Asserting(application, kName),
      m_application(application),
      m_repository(repository),
      m_filedShortcuts(application.desktop.files),
      m_nearbyDays(application.desktop.files, repository) {
  application.activeForm = &form;
  ShowSuspendOrResume(true);
  ConnectControls();
}

FMain::~FMain() {
  m_application.activeForm = nullptr;
}

void FMain::ConnectControls() {
  tmrMain.Tick.Connect([this] { tmrMain_Timer(); });
  tryMain.MouseUp.Connect([this](int button, int) { tryMain_MouseUp(button); });
  tvwMain.MouseUp.Connect([this](int button, double x, double y) { tvwMain_MouseUp(button, x, y); });
  for (std::size_t i = 0; i < picMain.size(); ++i) picMain[i].Resize.Connect([this, i] { picMain_Resize(i); });
  for (std::size_t i = 0; i < sftToolbar.size(); ++i) sftToolbar[i].Click.Connect([this, i] { sftToolbar_Click(i); });
  mnuFilePopup.Click.Connect([this](int index) { mnuFilePopup_Click(index); });
  mnuViewPopup.Click.Connect([this](int index) { mnuViewPopup_Click(index); });
  mnuToolsPopup.Click.Connect([this](int index) { mnuToolsPopup_Click(index); });
  mnuHelpPopup.Click.Connect([this](int index) { mnuHelpPopup_Click(index); });
  mnuTreeViewPopup.Click.Connect([this](int index) { mnuTreeViewPopup_Click(index); });
  mnuSysTrayPopup.Click.Connect([this](int index) { mnuSysTrayPopup_Click(index); });
  mnuListViewPopup.Click.Connect([this](int index) { mnuListViewPopup_Click(index); });
  mnuArrangeViewPopup.Click.Connect([this](int index) { SetListView(index); });
  mnuViewArrangePopup.Click.Connect([this](int index) { ArrangeIcons(index); });
  mnuArrangeIconsPopup.Click.Connect([this](int index) { ArrangeIcons(index); });
  form.Activate.Connect([this] { Form_Activate(); });
  form.Resize.Connect([this] { Form_Resize(); });
  form.QueryUnload.Connect([this](bool& cancel, controls::UnloadMode mode) { Form_QueryUnload(cancel, mode); });
  form.Unload.Connect([this] { Form_Unload(); });
}

void FMain::Form_Load(const std::function<void()>& splashDone) {
  const bool isLoaded = ReportErrors(m_application, kStartingTheProgram, kName, "Form_Load", [&] {
    tryMain.SetPicture(kBusyIcon);
    tryMain.SetTipText(m_application.info.title);
    LoadResources();
    SetHelpContextIDs();
    CreateViews();
    ConnectViews();
    m_recentFolder = m_application.shellServices.SpecialFolderPath(platform::kRecentFolder);
    ReadOptions();
    m_oFavorites->CountWhatWasCutOff();
    PurgeAtStart();
    const bool hasCaptured = CaptureAtStart();
    RefreshDaily();
    LoadFavorites();
    RefreshFavorites();
    RestoreWindow();
    RestoreViews();
    m_isRestored = true;
    RefreshStatusBar();
    StartCapture(hasCaptured);
    splashDone();
    m_application.desktop.windowing.ProcessPendingMessages();
    SetVisible(m_visibleAtStart);
  });
  if (!isLoaded) ShowSuspendOrResume(tmrMain.Enabled());
}

void FMain::LoadResources() {
  form.SetCaption(m_application.info.title + " - " + ResourceString(kDaily));
  tvwMain.SetImages(&imlMain);
}

void FMain::CreateViews() {
  m_oCalendar = std::make_unique<CCalendar>(m_application);
  m_oCalendar->DailyPath = m_repository.DailyPath();
  calMain.SetCurrentDate(std::chrono::floor<std::chrono::days>(m_application.desktop.clock.Now()));
  m_oCalendar->SetCalendar(&calMain);
  m_oDaily = std::make_unique<CDaily>(m_application);
  m_oDaily->SetControls(&tvwMain, &lvwDaily, &picDaily);
  m_oFavorites = std::make_unique<CFavorites>(m_application);
  m_oFavorites->AppPath = m_application.folder;
  m_oFavorites->DailyFolder = "Daily";
  m_oFavorites->SetListControls(&lvwFavorites, &picFavorites);
}

void FMain::ConnectViews() {
  m_oCalendar->DateChange.Connect([this](const Date& date) { m_oCalendar_DateChange(date); });
  m_oDaily->TreeViewNodeClick.Connect([this](controls::TreeNode& node) { m_oDaily_TreeViewNodeClick(node); });
  m_oDaily->DblClick.Connect([this](controls::ListItem& item) { m_oDaily_ListViewDblClick(item); });
  m_oDaily->ItemClick.Connect([this] { m_oDaily_ListViewItemClick(); });
  m_oDaily->PopupMenu.Connect([this](double x, double y) { m_oDaily_ListViewPopupMenu(x, y); });
  m_oFavorites->DblClick.Connect([this](controls::ListItem& item) { m_oFavorites_DblClick(item); });
  m_oFavorites->ItemClick.Connect([this] { m_oFavorites_ItemClick(); });
  m_oFavorites->PopupMenu.Connect([this](double x, double y) { m_oFavorites_PopupMenu(x, y); });
}

void FMain::SetHelpContextIDs() {
  calMain.SetWhatsThisHelpID(kHelpCalendar);
  tvwMain.SetWhatsThisHelpID(kHelpDayTree);
  lvwDaily.SetWhatsThisHelpID(kHelpDailyList);
  lvwFavorites.SetWhatsThisHelpID(kHelpFavoritesList);
  for (const ToolbarRow& row : kToolbarRows) sftToolbar[row.button].SetWhatsThisHelpID(row.help);
}

void FMain::Welcome() {
  const std::string text = ResourceString(kWelcome) + "\r\n\r\n" + ResourceString(kWelcomeReviewSettings) + "\r\n" +
                           ResourceString(kWelcomeByOptions) + "\r\n\r\n" + ResourceString(kWelcomeViewHelp);
  if (m_application.Ask(text, platform::MessageIcon::Information)) DisplayHelp(kHelpFirstRun);
}

void FMain::PurgeAtStart() {
  // Reported apart: a folder that cannot be purged must not keep the program from capturing.
  ReportErrors(m_application, kPurgingDay, kName, "PurgeAtStart", [this] {
    if (m_repository.PurgeOldShortcuts(m_purgeAge)) m_oFavorites->RebuildFavorites();
    m_repository.PurgeEmptyFolders();
  });
}

void FMain::ReadOptions() {
  COptions options(m_application);
  options.ReadValues();
  if (options.DefaultOptionsUsed()) Welcome();
  m_favoritesThreshold = options.FavoritesThreshold();
  m_purgeAge = options.PurgeAge();
  m_timerInterval = options.TimerInterval();
}

bool FMain::CaptureAtStart() {
  // Reported apart, as the purge is: what cannot be filed must not keep what is filed from being shown and counted.
  return ReportErrors(m_application, kCheckingForDocuments, kName, "CaptureAtStart", [this] { GetShortcuts(); });
}

void FMain::LoadFavorites() {
  const bool isThere = m_oFavorites->Read();
  // A file that cannot be read tells as little as one that is missing.
  if (isThere && !m_oFavorites->IsWhole()) m_oFavorites->RebuildFavorites();
  SaveCounts();
}

void FMain::SetTimerInterval() {
  // Only the dialog keeps to a minute: a stored option may be any number of seconds.
  constexpr std::int64_t kMillisecondsPerSecond = 1000;
  constexpr std::int64_t kLongest = std::numeric_limits<int>::max();
  const std::int64_t milliseconds = m_timerInterval * kMillisecondsPerSecond;
  tmrMain.SetInterval(static_cast<int>(std::clamp<std::int64_t>(milliseconds, 0, kLongest)));
}

void FMain::StartCapture(bool hasCaptured) {
  SetTimerInterval();
  if (hasCaptured) {
    tryMain.SetPicture(kNormalIcon);
    tmrMain.SetEnabled(true);
  }
  ShowSuspendOrResume(hasCaptured);
}

std::unique_ptr<CWaitCursor> FMain::ShowWait() {
  auto waitCursor = std::make_unique<CWaitCursor>(m_application);
  waitCursor->SetMessage(sbrMain, ResourceString(kPleaseWait));
  return waitCursor;
}

void FMain::RefreshStatusBar(std::unique_ptr<CWaitCursor> waitCursor) {
  waitCursor.reset();
  if (const controls::ListView* list = ActiveList()) sbrMain.SetText(std::to_string(list->Count()) + " objects");
}

}  // namespace dayvane
