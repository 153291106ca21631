// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/DateConventions.h"
#include "windows/WindowsWindowing.h"
#include "windows/forms/Later.h"
#include "windows/forms/MainWindow.h"
#include "windows/forms/OptionsWindow.h"
#include "windows/forms/SplashWindow.h"
#include "windows/tray/TrayPresenter.h"
#include "windows/widgets/Icons.h"

namespace dayvane::widgets {

/// The windows of the program while it runs: made when their forms are there, gone with them.
class ProgramWindows {
 public:
  /// All must outlive the windows. `shell` is the tray icon's.
  ProgramWindows(WindowsWindowing& windowing, const platform::DateConventions& dates, TopicHelp topicHelp,
                 TrayIcon::Shell shell = {});
  ProgramWindows(const ProgramWindows&) = delete;
  ProgramWindows& operator=(const ProgramWindows&) = delete;
  ~ProgramWindows();

  void Present(FSplash& splash);
  void Present(FMainControls& mainWindow);

  /// The user's session ends. Before there is a main window what is still asked is closed; the window goes as soon as
  /// it has loaded.
  void EndSession();

 private:
  void Present(FOptions& options);
  void HearOfSession(SessionNews news);

  /// Makes a window for a form and keeps it until the form is unloaded.
  template <class Window, class... Arguments>
  void Open(std::optional<Window>& window, Arguments&&... arguments);
  template <class Window>
  void Close(std::optional<Window>& window);

  WindowsWindowing& m_windowing;
  const platform::DateConventions& m_dates;
  TopicHelp m_topicHelp;
  TrayIcon::Shell m_shell;
  Later m_later;
  Icons m_icons;
  bool m_sessionEnds = false;
  std::optional<SplashWindow> m_splash;
  std::optional<MainWindow> m_main;
  std::optional<OptionsWindow> m_options;
  std::optional<TrayPresenter> m_tray;
};

}  // namespace dayvane::widgets
