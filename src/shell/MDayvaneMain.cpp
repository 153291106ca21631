// SPDX-License-Identifier: MIT
#include "shell/MDayvaneMain.h"

#include "app/IgnoreErrors.h"
#include "app/ReportErrors.h"

namespace dayvane {

Program Main(const platform::Desktop& desktop, const std::string& programFolder, bool alreadyRunning,
             const Presentation& presentation) {
  Program program;
  if (alreadyRunning) {
    IgnoreErrors([&] {
      desktop.windowing.ShowMessage({ResourceString(kAlreadyLoaded), ThisProgram().title, platform::MessageButtons::Ok,
                                     platform::MessageIcon::Information});
    });
    return program;
  }
  program.splash = std::make_unique<FSplash>(ThisProgram());
  FSplash& splash = *program.splash;
  IgnoreErrors([&] {
    presentation.splash(splash);
    splash.Show();
    desktop.windowing.ProcessPendingMessages();
  });
  program.application = std::make_unique<Application>(desktop, programFolder);
  Application& application = *program.application;
  ReportErrors(application, kStartingTheProgram, "MDayvane", "Main", [&] {
    program.repository = std::make_unique<CRepository>(application);
    desktop.windowing.ProcessPendingMessages();
    program.mainWindow = std::make_unique<FMain>(application, *program.repository);
    presentation.mainWindow(*program.mainWindow, application);
    program.mainWindow->Form_Load([&splash] { splash.Unload(); });
  });
  splash.Unload();
  return program;
}

}  // namespace dayvane
