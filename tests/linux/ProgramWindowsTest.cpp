// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QMessageBox>
#include <QSessionManager>
#include <QTest>
#include <QTimer>
#include <array>
#include <cstddef>
#include <filesystem>
#include <gmock/gmock.h>
#include <optional>

#include "base/Error.h"
#include "linux/ProgramWindows.h"
#include "shell/MDayvaneMain.h"
#include "tests/linux/tray/TestTray.h"
#include "tests/support/TestDesktop.h"

namespace dayvane::widgets {
namespace {

using ::testing::Contains;
using ::testing::EndsWith;
using ::testing::IsEmpty;

/// The program with real windows and real boxes, over a temporary folder.
class ProgramWindowsTest : public ::testing::Test {
 protected:
  ProgramWindowsTest() {
    m_test.registry.Settings("Options") = {{"Favorites Threshold", "3"}, {"Purge Age", "30"}, {"Timer Interval", "60"}};
  }
  ~ProgramWindowsTest() override {
    // Qt remembers that it was told to exit until its main loop has run.
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
  }

  void Start() {
    m_program = Main(m_desktop, m_test.Folder(), false,
                     {[this](FSplash& splash) { m_windows.Present(splash); },
                      [this](FMainControls& mainWindow, Application&) { m_windows.Present(mainWindow); }});
  }

  /// Ends the session while the next box waits for the user, and watches for more of them.
  void EndSessionDuringTheNextBox() {
    QTimer::singleShot(0, &m_context, [this] {
      if (QApplication::activeModalWidget() == nullptr) return EndSessionDuringTheNextBox();
      m_windows.EndSession();
      WatchForBoxes();
    });
  }

  /// From now on closes the boxes that wait for the user, and keeps their texts.
  void WatchForBoxes() {
    QObject::connect(&m_watch, &QTimer::timeout, &m_context, [this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      m_boxes.push_back(box->text().toStdString());
      box->close();
    });
    m_watch.start(0);
  }

  bool HasEnded() {
    return QTest::qWaitFor([this] { return m_program.mainWindow->form.IsUnloaded(); });
  }

  testing::TestDesktop m_test;
  LinuxWindowing m_windowing;
  platform::Desktop m_desktop{m_test.files, m_test.shell, m_test.icons, m_test.registry,
                              m_windowing,  m_test.help,  m_test.clock, m_test.dates};
  Program m_program;
  testing::TestLauncher m_launcher;
  ProgramWindows m_windows{m_windowing, m_test.dates, m_launcher, [](int, QPoint) {}};
  QTimer m_watch;
  std::vector<std::string> m_boxes;
  QObject m_context;
};

TEST_F(ProgramWindowsTest, TheSessionManagerSaysWhenTheSessionEnds) {
  Start();
  std::vector<controls::UnloadMode> modes;
  m_program.mainWindow->form.QueryUnload.Connect([&](bool&, controls::UnloadMode mode) { modes.push_back(mode); });
  // Only Qt can make a session manager; nobody looks into this one.
  alignas(QSessionManager) std::array<std::byte, sizeof(QSessionManager)> session{};

  Q_EMIT qApp->commitDataRequest(reinterpret_cast<QSessionManager&>(session));

  EXPECT_THAT(modes, ::testing::ElementsAre(controls::UnloadMode::SystemSession));
}

TEST_F(ProgramWindowsTest, WhatFailsAtTheSessionsEndIsLoggedAndHoldsNothingUp) {
  m_test.OpenDocument("Z:\\home\\ana\\New.odt", "2026-11-21 09:15:00");
  Start();
  std::filesystem::remove(m_test.NativeFolder() + "/Favorites.dat");
  m_test.folder.Write("program/Favorites.dat/in the way", "");
  WatchForBoxes();

  m_windows.EndSession();

  EXPECT_TRUE(HasEnded());
  EXPECT_THAT(m_boxes, IsEmpty());
  EXPECT_THAT(m_test.LogLines("ErrorLog.txt"), Contains(EndsWith("An error occurred saving the current settings.")));
}

TEST_F(ProgramWindowsTest, TheSessionsEndDuringTheWelcomeAsksNothingMore) {
  m_test.registry.keys.clear();
  m_test.registry.keys["\\HKEY_CURRENT_USER\\Software"];
  std::filesystem::create_directories(m_test.NativeFolder() + "/Daily/2025/May/05");
  testing::WriteShortcut(m_test.NativeFolder() + "/Daily/2025/May/05/Old.odt.lnk", {}, "2025-05-05 09:00:00");
  m_test.OpenDocument("Z:\\home\\ana\\New.odt", "2026-11-21 09:15:00");
  EndSessionDuringTheNextBox();

  Start();

  EXPECT_TRUE(HasEnded());
  EXPECT_THAT(m_boxes, IsEmpty());
  EXPECT_TRUE(std::filesystem::exists(m_test.NativeFolder() + "/Daily/2025/May/05/Old.odt.lnk"));
  EXPECT_TRUE(std::filesystem::exists(m_test.NativeFolder() + "/Daily/2026/November/21/New.odt.lnk"));
}

}  // namespace
}  // namespace dayvane::widgets
