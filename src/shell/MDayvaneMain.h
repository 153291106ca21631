#pragma once

#include <functional>
#include <memory>
#include <string>

#include "app/Application.h"
#include "repository/CRepository.h"
#include "shell/FMain.h"

namespace dayvane {

/// What Main keeps until the program ends.
struct Program {
  std::unique_ptr<Application> application;
  std::unique_ptr<CRepository> repository;
  std::unique_ptr<FMain> mainWindow;
};

/// Shows the main window on the desktop before it loads.
using Present = std::function<void(FMain& mainWindow, Application& application)>;

/// The entry point: refuses to start beside another instance, creates the process-wide objects and loads the main
/// window; the program then lives in the desktop's message loop. `programFolder` has no trailing "\". The result has no
/// main window when the program is not to run; the user has been told why.
Program Main(const platform::Desktop& desktop, const std::string& programFolder, bool alreadyRunning,
             const Present& present);

}  // namespace dayvane
