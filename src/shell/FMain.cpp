#include "shell/FMain.h"

#include "app/ReportErrors.h"
#include "settings/COptions.h"
#include "shell/MResourceConstants.h"

namespace dayvane {

namespace {

constexpr int kMillisecondsPerSecond = 1000;

controls::Picture ResourcePicture(int resource) {
  return {{}, resource};
}

}  // namespace

FMain::FMain(Application& application, CRepository& repository) : m_application(application), m_repository(repository) {
  application.activeForm = &form;
  BuildLists();
  ConnectControls();
}

FMain::~FMain() {
  m_application.activeForm = nullptr;
}

void FMain::Assert(bool condition, std::string_view message) const {
  if (!condition) m_application.asserts.Assert(false, kName + std::string(message));
}

void FMain::BuildLists() {
  lvwDaily.SetName("lvwDaily");
  lvwDaily.SetColumns({{"Name"}, {"Type"}, {"Path"}, {"Modified"}});
  lvwFavorites.SetName("lvwFavorites");
  lvwFavorites.SetColumns({{"Name"}, {"Type"}, {"Path"}, {"Days Accessed"}, {"Last Accessed"}});
  for (const int level : {kRepositoryPicture, kYearPicture, kMonthPicture, kDayPicture})
    imlMain.Add(ResourcePicture(level));
  for (controls::ImageList* images : {&imlLarge, &imlSmall, &imlFavorites})
    images->Add(ResourcePicture(kDefaultDocumentPicture));
  lvwDaily.SetImages(&imlLarge, &imlSmall);
  lvwFavorites.SetImages(&imlFavorites, &imlFavorites);
}

void FMain::ConnectControls() {
  tmrMain.Tick.Connect([this] { tmrMain_Timer(); });
  form.Activate.Connect([this] { Form_Activate(); });
  form.Resize.Connect([this] { Form_Resize(); });
  form.QueryUnload.Connect([this](bool& cancel, controls::UnloadMode mode) { Form_QueryUnload(cancel, mode); });
  form.Unload.Connect([this] { Form_Unload(); });
}

void FMain::Form_Load(const std::function<void()>& splashDone) {
  ReportErrors(m_application, kStartingTheProgram, kName, "Form_Load", [&] {
    tryMain.SetPicture(kBusyIcon);
    tryMain.SetTipText(m_application.info.title);
    LoadResources();
    CreateViews();
    m_recentFolder = m_application.shellServices.SpecialFolderPath(platform::kRecentFolder);
    ReadOptions();
    CaptureAtStart();
    RefreshDaily();
    LoadFavorites();
    RefreshFavorites();
    RestoreWindow();
    RefreshStatusBar();
    tryMain.SetPicture(kNormalIcon);
    StartCapture();
    splashDone();
    m_application.desktop.windowing.ProcessPendingMessages();
    SetVisible(true);
  });
}

void FMain::LoadResources() {
  form.SetCaption(m_application.info.title + " - " + ResourceString(kDaily));
  tvwMain.SetImages(&imlMain);
}

void FMain::CreateViews() {
  m_oCalendar = std::make_unique<CCalendar>(m_application);
  m_oCalendar->DailyPath = m_repository.DailyPath();
  m_oCalendar->SetCalendar(&calMain);
  m_oCalendar->DateChange.Connect([this](const Date& date) { m_oCalendar_DateChange(date); });
  m_oDaily = std::make_unique<CDaily>(m_application);
  m_oDaily->SetControls(&tvwMain, &lvwDaily, &picDaily);
  m_oDaily->TreeViewNodeClick.Connect([this](controls::TreeNode& node) { m_oDaily_TreeViewNodeClick(node); });
  m_oFavorites = std::make_unique<CFavorites>(m_application);
  m_oFavorites->AppPath = m_application.folder;
  m_oFavorites->DailyFolder = "Daily";
  m_oFavorites->SetListControls(&lvwFavorites, &picFavorites);
}

void FMain::ReadOptions() {
  COptions options(m_application);
  options.ReadValues();
  m_favoritesThreshold = options.FavoritesThreshold();
  m_purgeAge = options.PurgeAge();
  m_timerInterval = options.TimerInterval();
}

void FMain::CaptureAtStart() {
  m_justCounted.clear();
  GetShortcuts();
}

void FMain::LoadFavorites() {
  // What the first capture filed was counted into a table that loading the file now replaces: those documents are
  // counted again, or opening one while the program does not run would never count.
  if (m_oFavorites->Read()) {
    for (const std::string& filed : m_justCounted) {
      CShortcut shortcut(m_application);
      shortcut.SetFile(filed);
      m_oFavorites->ProcessShortcut(&shortcut);
    }
  }
  if (!m_justCounted.empty()) m_oFavorites->Save();
  m_justCounted.clear();
}

void FMain::RestoreWindow() {
  m_oDaily->RestoreSettings();
  m_oFavorites->RestoreSettings();
  SetActiveView(kDailyView);
}

void FMain::StartCapture() {
  tmrMain.SetInterval(m_timerInterval * kMillisecondsPerSecond);
  tmrMain.SetEnabled(true);
}

std::unique_ptr<CWaitCursor> FMain::ShowWait() {
  auto waitCursor = std::make_unique<CWaitCursor>(m_application);
  waitCursor->SetMessage(sbrMain, ResourceString(kPleaseWait));
  return waitCursor;
}

void FMain::RefreshStatusBar(std::unique_ptr<CWaitCursor> waitCursor) {
  waitCursor.reset();
  if (m_activeView != kDailyView && m_activeView != kFavoritesView) return;
  const controls::ListView& list = m_activeView == kDailyView ? lvwDaily : lvwFavorites;
  sbrMain.SetText(std::to_string(list.Count()) + " objects");
}

}  // namespace dayvane
