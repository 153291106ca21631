// SPDX-License-Identifier: MIT

// The program on Windows: its parts are put together here, and the message loop runs.

#include <exception>
#include <optional>
#include <string>
#include <utility>

#include "app/EventSink.h"
#include "app/ReportErrors.h"
#include "shell/MDayvaneMain.h"
#include "windows/ProgramWindows.h"
#include "windows/WindowsClock.h"
#include "windows/WindowsDateConventions.h"
#include "windows/WindowsFileSystem.h"
#include "windows/WindowsHelp.h"
#include "windows/WindowsRegistry.h"
#include "windows/WindowsShell.h"
#include "windows/WindowsShellIcons.h"
#include "windows/WindowsWindowing.h"
#include "windows/files/ProgramFolder.h"
#include "windows/files/SingleInstance.h"
#include "windows/files/WideText.h"
#include "windows/forms/ErrorNet.h"
#include "windows/forms/EventLoop.h"
#include "windows/forms/Later.h"
#include "windows/launch/ComApartment.h"

namespace dayvane {
namespace {

constexpr int kFailure = 1;

/// For what goes wrong before the program's own reports work.
int Refuse(const std::string& reason) {
  const std::wstring text = files::ToWide(reason).value_or(L"Dayvane cannot start.");
  MessageBoxW(nullptr, text.c_str(), L"Dayvane", MB_OK | MB_ICONWARNING | MB_SETFOREGROUND);
  return kFailure;
}

/// An error that no handler catches is reported like any other.
void LayNet(std::optional<widgets::ErrorNet>& net, Application& application) {
  const auto report = [&application](StringId phrase) {
    ReportCurrentError(application, phrase, "MDayvane", "EventLoop");
  };
  net.emplace(report, [] { PostQuitMessage(kFailure); });
}

/// A user who asked for help at the welcome wants to read it, and not to have the main window cover it.
void KeepHelpInFront(help::WindowsHelp& help, widgets::Later& later, FMainControls& mainWindow) {
  mainWindow.form.Activate.Connect([&help, &later, isFirst = true]() mutable {
    if (std::exchange(isFirst, false)) later.Do([&help] { help.BringToFront(); });
  });
}

int Run(const std::string& programFolder) {
  const launch::ComApartment apartment;
  EventSink events;
  const ReportEvent reportEvent = [&events](const std::string& text) { events.Report(text); };
  const std::optional<SingleInstance> instance = SingleInstance::Acquire();
  files::WindowsFileSystem files;
  WindowsShell shell(files, reportEvent);
  WindowsShellIcons shellIcons(shell);
  WindowsRegistry registry(reportEvent);
  widgets::WindowsWindowing windowing;
  help::WindowsHelp help;
  WindowsClock clock;
  const platform::DateConventions dates = DateConventionsOf(LOCALE_NAME_USER_DEFAULT);
  const platform::Desktop desktop{files, shell, shellIcons, registry, windowing, help, clock, dates};

  const std::string helpFile = programFolder + "\\Dayvane.hlp";
  Program program;
  std::optional<widgets::ErrorNet> net;
  widgets::Later later;
  widgets::ProgramWindows windows(windowing, dates,
                                  [&](int contextId, POINT at) { help.ShowPopup(helpFile, contextId, at); });
  program = Main(desktop, programFolder, !instance,
                 {[&](FSplash& splash) { windows.Present(splash); },
                  [&](FMainControls& mainWindow, Application& application) {
                    events.SetLog(&application.eventLog);
                    LayNet(net, application);
                    windows.Present(mainWindow);
                    KeepHelpInFront(help, later, mainWindow);
                  }});
  int result = program.mainWindow || !instance ? 0 : kFailure;
  if (program.mainWindow && !program.mainWindow->form.IsUnloaded())
    result = widgets::RunEventLoop([&windows] { windows.EndSession(); });
  events.SetLog(nullptr);
  return result;
}

int Start() {
  const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_DATE_CLASSES};
  InitCommonControlsEx(&classes);
  // A drive without a disk is an error like any other, and no box of the system's.
  SetErrorMode(SEM_FAILCRITICALERRORS);
  const std::string folder = ProgramFolder();
  if (CanBeWritten(folder)) return Run(folder);
  return Refuse("Dayvane keeps its record beside itself, and nothing can be written in its folder:\r\n\r\n" + folder +
                "\r\n\r\nPlease put the program into a folder of your own, such as one in your documents.");
}

}  // namespace
}  // namespace dayvane

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*commandLine*/, int /*show*/) {
  try {
    return dayvane::Start();
  } catch (const std::exception& error) {
    return dayvane::Refuse(error.what());
  }
}
