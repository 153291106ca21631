// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "app/Application.h"
#include "repository/CRepository.h"
#include "shell/FMain.h"
#include "shell/FSplash.h"

namespace dayvane {

/// What Main keeps until the program ends.
struct Program {
  std::unique_ptr<FSplash> splash;  ///< unloaded once the main window is there
  std::unique_ptr<Application> application;
  std::unique_ptr<CRepository> repository;
  std::unique_ptr<FMain> mainWindow;
};

/// How a desktop learns of the program's windows: each is handed over with its controls built, before it is shown. The
/// splash window is unloaded before Main returns.
struct Presentation {
  std::function<void(FSplash& splash)> splash = [](FSplash&) {};
  std::function<void(FMainControls& mainWindow, Application& application)> mainWindow = [](FMainControls&,
                                                                                           Application&) {};
};

/// The entry point: refuses to start beside another instance, shows the splash window, creates the process-wide objects
/// and loads the main window; the program then lives in the desktop's message loop. `programFolder` has no trailing
/// "\". The result has no main window when the program is not to run; the user has been told why.
Program Main(const platform::Desktop& desktop, const std::string& programFolder, bool alreadyRunning,
             const Presentation& presentation);

}  // namespace dayvane
