// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <optional>

#include "settings/FOptions.h"
#include "shell/MDayvaneMain.h"
#include "tests/support/TestDesktop.h"
#include "tests/windows/MessageLoop.h"
#include "windows/ProgramWindows.h"
#include "windows/forms/Questions.h"

namespace dayvane::widgets {
namespace {

using dayvane::testing::RunMessages;
using dayvane::testing::Soon;
using dayvane::testing::WaitUntil;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;

/// The program with real windows and real boxes, over a temporary folder.
class WindowsProgramTest : public ::testing::Test {
 protected:
  WindowsProgramTest() {
    m_test.registry.Settings("Options") = {{"Favorites Threshold", "3"}, {"Purge Age", "30"}, {"Timer Interval", "60"}};
  }
  ~WindowsProgramTest() override {
    // What the program's end left in the queue is the next test's end otherwise.
    PostQuitMessage(0);
    RunEventLoop([] {});
  }

  void Start() {
    m_program = Main(m_desktop, m_test.Folder(), false,
                     {[this](FSplash& splash) { m_windows.Present(splash); },
                      [this](FMainControls& mainWindow, Application&) { m_windows.Present(mainWindow); }});
  }

  controls::Form& Form() { return m_program.mainWindow->form; }

  static HWND WindowOf(const wchar_t* className) { return FindWindowW(className, nullptr); }

  /// All windows of the program are told, as at the real end of a session.
  static void TellAllWindows(UINT message, WPARAM wParam) {
    for (const wchar_t* name : {L"Dayvane.Splash", L"Dayvane.Main", L"Dayvane.Options"})
      if (const HWND window = WindowOf(name)) SendMessageW(window, message, wParam, 0);
  }

  testing::TestDesktop m_test;
  WindowsWindowing m_windowing;
  platform::Desktop m_desktop{m_test.files, m_test.shell, m_test.icons, m_test.registry,
                              m_windowing,  m_test.help,  m_test.clock, m_test.dates};
  Program m_program;
  ProgramWindows m_windows{m_windowing, m_test.dates, [](int, POINT) {}, [](DWORD, NOTIFYICONDATAW&) { return true; }};
};

TEST_F(WindowsProgramTest, TheSplashGoesWhenTheMainWindowIsThere) {
  Start();
  RunMessages();

  EXPECT_EQ(WindowOf(L"Dayvane.Splash"), nullptr);
  EXPECT_TRUE(Form().Visible());
}

TEST_F(WindowsProgramTest, AProgramThatEndsEndsItsLoop) {
  Start();

  Form().RequestUnload(controls::UnloadMode::TaskManager);

  EXPECT_EQ(RunEventLoop([] {}), 0);
}

TEST_F(WindowsProgramTest, TheSessionsEndIsHeardByAnyWindow) {
  Start();
  std::vector<controls::UnloadMode> modes;
  Form().QueryUnload.Connect([&](bool&, controls::UnloadMode mode) { modes.push_back(mode); });

  TellAllWindows(WM_QUERYENDSESSION, 0);
  TellAllWindows(WM_ENDSESSION, TRUE);

  EXPECT_THAT(modes, ElementsAre(controls::UnloadMode::SystemSession));
}

TEST_F(WindowsProgramTest, ASessionThatGoesOnLeavesTheProgramAsItWas) {
  Start();
  TellAllWindows(WM_QUERYENDSESSION, 0);
  TellAllWindows(WM_ENDSESSION, FALSE);
  const Soon close([] { PostMessageW(OpenQuestion(), WM_CLOSE, 0, 0); });
  bool wasShown = false;

  m_windowing.ShowMessage({"One", "Dayvane"});
  wasShown = !m_program.mainWindow->form.IsUnloaded();

  EXPECT_TRUE(wasShown);
}

TEST_F(WindowsProgramTest, WhatFailsAtTheSessionsEndIsLoggedAndHoldsNothingUp) {
  m_test.OpenDocument("Z:\\home\\ana\\New.odt", "2026-11-21 09:15:00");
  Start();
  std::filesystem::remove(m_test.NativeFolder() + "/Favorites.dat");
  m_test.folder.Write("program/Favorites.dat/in the way", "");

  m_windows.EndSession();

  EXPECT_TRUE(WaitUntil([this] { return Form().IsUnloaded(); }));
  EXPECT_EQ(OpenQuestion(), nullptr);
  EXPECT_THAT(m_test.LogLines("ErrorLog.txt"), Contains(EndsWith("An error occurred saving the current settings.")));
}

TEST_F(WindowsProgramTest, TheSessionsEndDuringTheWelcomeAsksNothingMore) {
  m_test.registry.keys.clear();
  m_test.registry.keys["\\HKEY_CURRENT_USER\\Software"];
  m_test.OpenDocument("Z:\\home\\ana\\New.odt", "2026-11-21 09:15:00");
  bool wasAsked = false;
  const Soon end([&] {
    wasAsked = OpenQuestion() != nullptr;
    TellAllWindows(WM_QUERYENDSESSION, 0);
    TellAllWindows(WM_ENDSESSION, TRUE);
  });

  Start();

  EXPECT_TRUE(wasAsked);
  EXPECT_TRUE(WaitUntil([this] { return Form().IsUnloaded(); }));
  EXPECT_TRUE(std::filesystem::exists(m_test.NativeFolder() + "/Daily/2026/November/21/New.odt.lnk"));
}

TEST_F(WindowsProgramTest, TheOptionsDialogOpensOverTheMainWindowAndGoes) {
  Start();
  RunMessages();
  HWND owner = nullptr;
  const Soon cancel([&] {
    const HWND dialog = WindowOf(L"Dayvane.Options");
    owner = GetWindow(dialog, GW_OWNER);
    PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
  });

  m_program.mainWindow->mnuViewPopup.Choose(kViewOptions);

  EXPECT_NE(owner, nullptr);
  EXPECT_EQ(WindowOf(L"Dayvane.Options"), nullptr);
  EXPECT_TRUE(IsWindowEnabled(owner));
}

}  // namespace
}  // namespace dayvane::widgets
