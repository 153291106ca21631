// SPDX-License-Identifier: MIT

// What the user waits for at a click in the window: another day, another style, another order. Each beside Qt's own
// views, filled with as many rows.

#include <QCoreApplication>
#include <QListView>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTreeView>
#include <algorithm>
#include <array>
#include <optional>

#include "bench/Bench.h"
#include "linux/LinuxFileSystem.h"
#include "linux/LinuxRegistry.h"
#include "linux/LinuxShell.h"
#include "linux/LinuxShellIcons.h"
#include "linux/ProgramWindows.h"
#include "shell/MDayvaneMain.h"
#include "tests/linux/tray/TestTray.h"

namespace dayvane {
namespace {

constexpr std::array kTwoDays{"2026/November/19", "2026/November/20"};
constexpr std::array kStyles{controls::ListStyle::LargeIcons, controls::ListStyle::List, controls::ListStyle::Details};
constexpr int kColumns = 5;

/// Everything that was posted has happened, and what that posted in turn: the window is painted.
void Settle() {
  constexpr int kRounds = 3;
  for (int round = 0; round < kRounds; ++round) QCoreApplication::processEvents();
}

/// The program's window as main() puts it together, over a made-up record.
class WindowOver {
 public:
  explicit WindowOver(const Bench& record)
      : m_folder(record.desktop.folder),
        m_shell(m_files, record.desktop.NativeFolder(), [](const std::string&) {}),
        m_registry(m_folder.Write("dayvane.ini",
                                  "[Software\\Korvath\\Dayvane\\Options]\n"
                                  "Favorites Threshold=1\nPurge Age=30000\nTimer Interval=60\n"),
                   [](const std::string&) {}) {
    m_clock.Set(2026, 11, 21);
    m_program = Main(m_parts, record.desktop.Folder(), false,
                     {[this](FSplash& splash) { m_windows.Present(splash); },
                      [this](FMainControls& mainWindow, Application&) { m_windows.Present(mainWindow); }});
    Settle();
  }

  FMain& Window() { return *m_program.mainWindow; }

 private:
  const testing::TemporaryFolder& m_folder;
  files::LinuxFileSystem m_files;
  LinuxShell m_shell;
  LinuxShellIcons m_icons{m_shell};
  LinuxRegistry m_registry;
  widgets::LinuxWindowing m_windowing;
  testing::TestHelp m_help;
  testing::TestClock m_clock;
  platform::DateConventions m_dates;
  platform::Desktop m_parts{m_files, m_shell, m_icons, m_registry, m_windowing, m_help, m_clock, m_dates};
  Program m_program;
  testing::TestLauncher m_launcher;
  widgets::ProgramWindows m_windows{m_windowing, m_dates, m_launcher, [](int, QPoint) {}};
};

/// A window over a list of as many favorites, all of one day that is not shown.
class FavoritesWindow {
 public:
  explicit FavoritesWindow(std::int64_t favorites) {
    m_record.FillDay(kTwoDays[0], favorites);
    m_record.FillDay(kTwoDays[1], 1);
    m_over.emplace(m_record);
    Window().RebuildFavorites();
    Window().SetActiveView(FMain::kFavoritesView);
    Settle();
  }

  FMain& Window() { return m_over->Window(); }

 private:
  Bench m_record;
  std::optional<WindowOver> m_over;
};

/// As many rows in Qt's own table and list, of which one is shown.
class BareViews {
 public:
  BareViews() {
    m_views.addWidget(&m_icons);
    m_views.addWidget(&m_details);
    m_icons.setModel(&m_model);
    m_icons.setUniformItemSizes(true);
    m_icons.setResizeMode(QListView::Adjust);
    m_details.setModel(&m_model);
    m_details.setUniformRowHeights(true);
    m_views.setCurrentWidget(&m_details);
    m_views.resize(800, 600);
    m_views.show();
  }

  void Fill(std::int64_t rows) {
    m_model.clear();
    m_model.setColumnCount(kColumns);
    for (std::int64_t row = 0; row < rows; ++row) {
      QList<QStandardItem*> items;
      for (int column = 0; column < kColumns; ++column)
        items.append(new QStandardItem(QStringLiteral("Document number %1").arg(row)));
      m_model.appendRow(items);
    }
  }

  void Show(controls::ListStyle style) {
    const bool large = style == controls::ListStyle::LargeIcons;
    m_icons.setViewMode(large ? QListView::IconMode : QListView::ListMode);
    m_views.setCurrentWidget(style == controls::ListStyle::Details ? static_cast<QWidget*>(&m_details) : &m_icons);
  }

 private:
  QStandardItemModel m_model;
  QStackedWidget m_views;
  QListView m_icons;
  QTreeView m_details;
};

void Day_Switch(benchmark::State& state) {
  Bench record;
  record.FillYears(state.range(1));
  for (const char* day : kTwoDays) record.FillDay(day, state.range(0));
  WindowOver over(record);
  std::size_t day = 0;
  for (auto _ : state) {
    std::string path = kTwoDays[day = 1 - day];
    std::replace(path.begin(), path.end(), '/', '\\');
    over.Window().tvwMain.Click(over.Window().tvwMain.Node(record.Key(path)));
    Settle();
  }
  TellMemory(state);
  if (over.Window().lvwDaily.Count() < static_cast<std::size_t>(state.range(0)))
    state.SkipWithError("the day is not listed");
}

void Day_Yardstick_BareTable(benchmark::State& state) {
  const Bench record;
  for (const char* day : kTwoDays) record.FillDay(day, state.range(0));
  BareViews views;
  std::size_t day = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ReadAll(record.Daily(kTwoDays[day = 1 - day])));
    views.Fill(state.range(0));
    Settle();
  }
  TellMemory(state);
}

void Style_Switch(benchmark::State& state) {
  FavoritesWindow favorites(state.range(0));
  std::size_t turn = 0;
  for (auto _ : state) {
    favorites.Window().SetListView(static_cast<int>(kStyles[turn++ % kStyles.size()]));
    Settle();
  }
  TellMemory(state);
}

void Style_Yardstick_BareViews(benchmark::State& state) {
  BareViews views;
  views.Fill(state.range(0));
  Settle();
  std::size_t turn = 0;
  for (auto _ : state) {
    views.Show(kStyles[turn++ % kStyles.size()]);
    Settle();
  }
  TellMemory(state);
}

void Sort_InTheWindow(benchmark::State& state) {
  FavoritesWindow favorites(state.range(0));
  favorites.Window().SetListView(static_cast<int>(controls::ListStyle::Details));
  Settle();
  if (favorites.Window().lvwFavorites.Count() != static_cast<std::size_t>(state.range(0)))
    state.SkipWithError("not every favorite is listed");
  for (auto _ : state) {
    favorites.Window().lvwFavorites.ColumnClick.Raise(1);
    Settle();
  }
  TellMemory(state);
}

void ByDay(benchmark::internal::Benchmark* bench) {
  bench->Unit(benchmark::kMillisecond)->ArgNames({"documents", "years"});
  bench->Args({100, 1})->Args({100, 10})->Args({1'000, 1})->Args({10'000, 1});
}
BENCHMARK(Day_Switch)->Apply(ByDay);
BENCHMARK(Day_Yardstick_BareTable)->Apply(ByDay);

void ByFavorites(benchmark::internal::Benchmark* bench) {
  bench->Unit(benchmark::kMillisecond)->ArgName("rows")->Arg(1'000)->Arg(10'000)->Arg(100'000);
}
BENCHMARK(Style_Switch)->Apply(ByFavorites);
BENCHMARK(Style_Yardstick_BareViews)->Apply(ByFavorites);
BENCHMARK(Sort_InTheWindow)->Apply(ByFavorites);

}  // namespace
}  // namespace dayvane
