#include "shell/MDayvaneMain.h"

#include "app/ReportErrors.h"

namespace dayvane {

Program Main(const platform::Desktop& desktop, const std::string& programFolder,
             const std::function<void(FMain&)>& present) {
  Program program;
  program.application = std::make_unique<Application>(desktop, programFolder);
  Application& application = *program.application;
  ReportErrors(application, kStartingTheProgram, "MDayvane", "Main", [&] {
    program.repository = std::make_unique<CRepository>(application);
    desktop.windowing.ProcessPendingMessages();
    program.mainWindow = std::make_unique<FMain>(application, *program.repository);
    present(*program.mainWindow);
    program.mainWindow->Form_Load();
  });
  return program;
}

}  // namespace dayvane
