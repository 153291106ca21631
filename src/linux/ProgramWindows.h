// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>
#include <optional>

#include "linux/LinuxWindowing.h"
#include "linux/forms/MainWindow.h"
#include "linux/forms/OptionsWindow.h"
#include "linux/forms/SplashWindow.h"
#include "linux/tray/DesktopTrayWatch.h"
#include "linux/tray/LauncherWatch.h"
#include "linux/tray/TrayPresenter.h"
#include "linux/widgets/Icons.h"
#include "platform/DateConventions.h"

namespace dayvane::widgets {

/// The windows of the program while it runs: made when their forms are there, gone with them.
class ProgramWindows {
 public:
  /// Shows the help topic of a control at a point of the screen.
  using TopicHelp = std::function<void(int contextId, QPoint at)>;

  /// All must outlive the windows.
  ProgramWindows(LinuxWindowing& windowing, const platform::DateConventions& dates, LauncherWatch& launcher,
                 TopicHelp topicHelp);
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

  /// Makes a window for a form and keeps it until the form is unloaded.
  template <class Window, class... Arguments>
  void Open(std::optional<Window>& window, Arguments&&... arguments);
  template <class Window>
  void Close(std::optional<Window>& window);

  QObject m_context;  ///< of what is done later, unless the windows have gone
  LinuxWindowing& m_windowing;
  const platform::DateConventions& m_dates;
  LauncherWatch& m_launcher;
  TopicHelp m_topicHelp;
  Icons m_icons;
  DesktopTrayWatch m_trayWatch;
  bool m_sessionEnds = false;
  std::optional<SplashWindow> m_splash;
  std::optional<MainWindow> m_main;
  std::optional<OptionsWindow> m_options;
  std::optional<TrayPresenter> m_tray;
};

}  // namespace dayvane::widgets
