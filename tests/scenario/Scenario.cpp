// SPDX-License-Identifier: MIT
#include "tests/scenario/Scenario.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <utility>

#include "settings/SettingsStore.h"
#include "shell/FMain.h"
#include "tests/scenario/ScenarioText.h"

namespace dayvane::testing {

namespace {

constexpr int kYear = 2021;

/// West of Greenwich, so that the days of the evenings are not those of UTC. The scenario ends before the clocks
/// change.
constexpr const char* kZone = "America/Los_Angeles";
constexpr std::chrono::hours kBehindUtc{8};

constexpr const char* kReport = "accounts/Report.letter";
constexpr const char* kReportOfArchive = "archive/Report.letter";
constexpr const char* kGreek = "accounts/\u0391\u03bd\u03b1\u03c6\u03bf\u03c1\u03ac.letter";
constexpr const char* kChinese = "sketches/\u6587\u66f8.sketch";
constexpr const char* kBlanks = "sketches/Bread & butter.sketch";
constexpr const char* kGone = "archive/Gone.letter";
constexpr const char* kProgram = "tools/Setup.exe";

class Scenario {
 public:
  explicit Scenario(ScenarioDesktop& desktop) : m_desktop(desktop) {
    for (const char* name : {kReport, kReportOfArchive, kGreek, kChinese, kBlanks, kGone, kProgram})
      desktop.folder.Write(Below("documents", name), "");
    std::filesystem::create_directory(PathOf(desktop.folder / "record"));
  }

  std::string Live() {
    FirstDay();
    DayAfter();
    SuspendedStretch();
    FavoritesByDays();
    DocumentThatIsGone();
    PurgeOfOneDay();
    Rebuild();
    NextStart();
    MonthLater();
    return std::move(m_text);
  }

 private:
  void FirstDay();
  void DayAfter();
  void SuspendedStretch();
  void FavoritesByDays();
  void DocumentThatIsGone();
  void PurgeOfOneDay();
  void Rebuild();
  void NextStart();
  void MonthLater();

  // What the user and the time do.
  void At(unsigned month, unsigned day, int hour, int minute) { m_scripted.clock.Set(kYear, month, day, hour, minute); }
  void Start();
  void Exit();
  void Open(const std::string& document);
  void Tick() { m_window->tmrMain.Fire(); }
  void ShowDay(const std::string& day);
  void OpenListed(const std::string& name);

  static std::string Below(const std::string& folder, const std::string& name) { return folder + "/" + name; }
  std::string Path(const std::string& name) const { return ProgramPath(m_desktop.folder / name); }
  static void StoreOptions(platform::Registry& registry);
  void Note(const std::string& title);

  ScenarioDesktop& m_desktop;
  LocalZone m_zone{kZone};
  ScriptedParts m_scripted;
  std::optional<platform::Desktop> m_parts;
  std::unique_ptr<Application> m_application;
  std::unique_ptr<CRepository> m_repository;
  std::unique_ptr<FMain> m_window;
  ScenarioText m_words{{{m_desktop.folder / "record", "<record>"}, {m_desktop.folder / "documents", "<documents>"}},
                       m_desktop.Programs()};
  bool m_isFirstStart = true;
  std::string m_text;
};

void Scenario::FirstDay() {
  At(1, 28, 9, 15);
  Open(kReport);
  At(1, 28, 10, 0);
  Start();
  Note("The first start files what was opened before it");
  At(1, 28, 11, 0);
  Open(kReportOfArchive);
  At(1, 28, 20, 30);
  Open(kGreek);
  Tick();
  Note("Another document of the same name, and a late evening");
}

void Scenario::DayAfter() {
  At(1, 29, 8, 5);
  Open(kReport);
  At(1, 29, 9, 0);
  Open(kChinese);
  At(1, 29, 10, 0);
  Open(kBlanks);
  Tick();
  At(1, 29, 16, 45);
  Open(kBlanks);
  Tick();
  At(1, 29, 17, 0);
  Open(kProgram);
  Tick();
  Note("The day after: one document again, one twice, and a program");
}

void Scenario::SuspendedStretch() {
  At(2, 1, 8, 0);
  m_window->mnuFilePopup.Choose(kFileSuspend);
  At(2, 1, 9, 0);
  Open(kReport);
  At(2, 1, 10, 0);
  Open(kGreek);
  Tick();
  Note("Suspended, nothing is filed");
  At(2, 1, 12, 30);
  m_window->mnuFilePopup.Choose(kFileResume);
  Note("Resumed, what was opened meanwhile is filed");
}

void Scenario::FavoritesByDays() {
  constexpr std::size_t kDaysColumn = 4;  // counted from 1
  m_window->mnuViewPopup.Choose(kViewFavorites);
  m_window->lvwFavorites.ColumnClick.Raise(kDaysColumn);
  Note("The favorites are looked at, in the order of their days");
  m_window->lvwFavorites.ColumnClick.Raise(kDaysColumn);
  Note("The other way round, as they stay from then on");
  m_window->mnuViewPopup.Choose(kViewDaily);
}

void Scenario::DocumentThatIsGone() {
  At(2, 2, 7, 50);
  Open(kReportOfArchive);
  At(2, 2, 8, 0);
  Open(kGone);
  At(2, 2, 9, 0);
  Open(kChinese);
  Tick();
  std::filesystem::remove(PathOf(m_desktop.folder / Below("documents", kGone)));
  ShowDay("2021\\February\\02");
  Note("A document is filed that is deleted then");
  At(2, 2, 9, 30);
  OpenListed("Gone.letter");
  Tick();
  Note("Its link is removed, which the user agreed to");
}

void Scenario::PurgeOfOneDay() {
  ShowDay("2021\\January\\28");
  Note("The first day is looked at");
  m_window->mnuTreeViewPopup.Choose(kTreeViewPurge);
  Tick();
  Note("That day is purged");
}

void Scenario::Rebuild() {
  // By the user, in the desktop's own file manager.
  std::filesystem::remove(PathOf(m_desktop.folder / "record/Daily/2021/January/29/Report.letter.lnk"));
  Tick();
  Note("A filed link is deleted by other means");
  m_window->mnuToolsPopup.Choose(kToolsRebuildFavorites);
  Note("The favorites are rebuilt");
}

void Scenario::NextStart() {
  At(2, 2, 18, 0);
  Exit();
  At(2, 3, 6, 0);
  Open(kReport);
  At(2, 3, 6, 30);
  Open(kChinese);  // most often now, so that the order tells what was clicked last and kept
  At(2, 3, 9, 0);
  Start();
  Note("The next start files what was opened while the program did not run");
}

void Scenario::MonthLater() {
  Exit();
  At(3, 4, 9, 0);
  Start();
  Note("A month later what is too old is purged at the start");
}

void Scenario::StoreOptions(platform::Registry& registry) {
  settings::CreateSubtree(registry, "Options",
                          {{"Favorites Threshold", "2"}, {"Purge Age", "30"}, {"Timer Interval", "60"}});
}

void Scenario::Start() {
  m_parts.emplace(m_desktop.Start(m_scripted));
  if (std::exchange(m_isFirstStart, false)) StoreOptions(m_parts->registry);
  m_application = std::make_unique<Application>(*m_parts, Path("record"));
  m_repository = std::make_unique<CRepository>(*m_application);
  m_window = std::make_unique<FMain>(*m_application, *m_repository);
  m_window->Form_Load();
  m_window->form.Activate.Raise();  // by the desktop, which shows the window
}

void Scenario::Exit() {
  m_window->mnuFilePopup.Choose(kFileExit);
  if (!m_window->form.IsUnloaded()) throw std::runtime_error("the program does not end");
  m_window.reset();
  m_repository.reset();
  m_application.reset();
}

void Scenario::Open(const std::string& document) {
  const auto universal = m_scripted.clock.now.time_since_epoch() + kBehindUtc;
  m_desktop.Open(Path(Below("documents", document)), universal.count());
}

void Scenario::ShowDay(const std::string& day) {
  controls::TreeNode& node = m_window->tvwMain.Node("K" + Path("record") + "\\Daily\\" + day);
  m_window->tvwMain.Click(node);
}

void Scenario::OpenListed(const std::string& name) {
  controls::ListView& list = m_window->lvwDaily;
  for (std::size_t row = 0; row < list.Count(); ++row)
    if (list.Row(row).text == name) list.SetSelectedItem(list.Find(list.Row(row).key));
  list.DblClick.Raise();
}

void Scenario::Note(const std::string& title) {
  m_text += (m_text.empty() ? "== " : "\n== ") + title + "\n";
  m_text += m_words.ChangesIn(*m_window, m_scripted.windowing.Texts(), m_desktop.folder / "record");
  m_scripted.windowing.messages.clear();
}

}  // namespace

std::string LiveThroughScenario(ScenarioDesktop& desktop) {
  return Scenario(desktop).Live();
}

std::string ExpectedScenario(const std::string& nativePath) {
  std::string text = ReadFile(nativePath);
  std::erase(text, '\r');  // where the working copy has the system's line ends
  return text;
}

}  // namespace dayvane::testing
