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

/// The entry point: creates the process-wide objects and loads the main window; the program then lives in the
/// desktop's message loop. `programFolder` has no trailing "\". `present` is handed the main window before it loads, so
/// that the desktop can show it. The result has no main window when starting failed; the user has been told why.
Program Main(const platform::Desktop& desktop, const std::string& programFolder,
             const std::function<void(FMain&)>& present);

}  // namespace dayvane
