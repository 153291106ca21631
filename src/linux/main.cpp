// SPDX-License-Identifier: MIT

// The program on a Linux desktop: its parts are put together here, and the message loop runs.

#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <glib-unix.h>
#include <optional>
#include <utility>

#include "app/EventSink.h"
#include "app/ReportErrors.h"
#include "linux/LinuxClock.h"
#include "linux/LinuxDateConventions.h"
#include "linux/LinuxFileSystem.h"
#include "linux/LinuxHelp.h"
#include "linux/LinuxRegistry.h"
#include "linux/LinuxShell.h"
#include "linux/LinuxShellIcons.h"
#include "linux/LinuxWindowing.h"
#include "linux/ProgramWindows.h"
#include "linux/activation/Activation.h"
#include "linux/activation/ApplicationId.h"
#include "linux/activation/BusApplication.h"
#include "linux/activation/GnomeShell.h"
#include "linux/files/NativePath.h"
#include "linux/files/ProgramFolder.h"
#include "linux/files/SingleInstance.h"
#include "linux/forms/Appearance.h"
#include "linux/forms/MessageBox.h"
#include "linux/glib/ErrorNet.h"
#include "linux/search/DocumentSearch.h"
#include "linux/session/Autostart.h"
#include "linux/session/StartWithSession.h"
#include "linux/widgets/Pictures.h"
#include "resources/MResourceConstants.h"
#include "shell/MDayvaneMain.h"

namespace dayvane {
namespace {

constexpr int kFailure = 1;

bool HasDisplay() {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    if (const char* value = std::getenv(name); value != nullptr && *value != '\0') return true;
  return false;
}

/// For what goes wrong before the program's own reports work.
int Refuse(const std::string& reason) {
  std::fprintf(stderr, "dayvane: %s\n", reason.c_str());
  constexpr int kPictureSize = 48;
  widgets::MessageBox box({reason, "Dayvane"}, nullptr);
  box.setIconPixmap(PictureIcon(kWarningPicture).pixmap(kPictureSize));
  box.exec();
  return kFailure;
}

/// The session's end, a stop from the terminal: the window saves what there is to save and goes.
int EndOnSignal(void* windows) {
  CatchErrors(kExitingOrHiding, [&] { static_cast<widgets::ProgramWindows*>(windows)->EndSession(); });
  return G_SOURCE_CONTINUE;
}

class SignalHandlers {
 public:
  explicit SignalHandlers(widgets::ProgramWindows& windows) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
      m_sources.push_back(g_unix_signal_add(signal, EndOnSignal, &windows));
  }
  SignalHandlers(const SignalHandlers&) = delete;
  SignalHandlers& operator=(const SignalHandlers&) = delete;
  ~SignalHandlers() {
    for (const guint source : m_sources) g_source_remove(source);
  }

 private:
  std::vector<guint> m_sources;
};

/// An error that no handler catches is reported like any other.
void LayNet(std::optional<ErrorNet>& net, Application& application) {
  const auto report = [&application](StringId phrase) {
    ReportCurrentError(application, phrase, "MDayvane", "EventLoop");
  };
  net.emplace(report, [] { QCoreApplication::exit(kFailure); });
}

/// A user who asked for help at the welcome wants to read it, and not to have the main window cover it.
void KeepHelpInFront(help::LinuxHelp& help, FMainControls& mainWindow) {
  mainWindow.form.Activate.Connect([&help, isFirst = true]() mutable {
    if (std::exchange(isFirst, false)) QTimer::singleShot(0, qApp, [&help] { help.BringToFront(); });
  });
}

/// The window's life after its start, in which it is served to those who call over the bus.
int RunMainWindow(Program& program, activation::BusApplication& bus, activation::Activation& activation,
                  widgets::ProgramWindows& windows) {
  activation.Serve(*program.mainWindow);
  const search::DocumentSearch search(bus, activation, *program.mainWindow, *program.application, *program.repository);
  return RunEventLoop([&windows] { windows.EndSession(); });
}

int Run() {
  const xdg::Environment environment = xdg::Environment::OfProcess();
  const ProgramFolders folders =
      FindProgramFolders(QCoreApplication::applicationFilePath().toStdString(), DAYVANE_DATA_FOLDER, environment);
  MakeDataFolder(folders);
  const auto programFolder = files::FromNative(folders.data);
  if (!programFolder) return Refuse("The folder for its data has a name that cannot be used: " + folders.data);

  EventSink events;
  const ReportEvent reportEvent = [&events](const std::string& text) { events.Report(text); };
  const std::optional<SingleInstance> instance = SingleInstance::Acquire(SingleInstance::Folder(environment));
  // A launcher that calls for the window while this one starts finds it on the bus.
  activation::BusApplication bus;
  if (instance) bus.Register(reportEvent);
  files::LinuxFileSystem files;
  LinuxShell shell(files, folders.data, reportEvent);
  LinuxShellIcons shellIcons(shell);
  LinuxRegistry registry(DefaultSettingsFile(), reportEvent);
  registry.AskForPrograms([&shell](const std::string& type) { return shell.LastProgramFor(type); });
  const widgets::Appearance appearance;
  widgets::LinuxWindowing windowing;
  help::LinuxHelp help(folders.resources);
  LinuxClock clock;
  const platform::DateConventions dates = DateConventionsOf();
  const platform::Desktop desktop{files, shell, shellIcons, registry, windowing, help, clock, dates};

  const std::string helpFile = *programFolder + "\\Dayvane.hlp";
  Program program;
  std::optional<ErrorNet> net;
  activation::GnomeShell gnomeShell(bus, registry);
  widgets::ProgramWindows windows(windowing, dates, gnomeShell,
                                  [&](int contextId, QPoint at) { help.ShowPopup(helpFile, contextId, at); });
  const SignalHandlers signals(windows);
  activation::Activation activation(bus, windowing);
  session::StartWithSession startWithSession(
      bus, activation,
      {files, session::DefaultAutostartFolder(), QCoreApplication::applicationFilePath().toStdString()});
  program = Main(desktop, *programFolder, !instance,
                 {[&](FSplash& splash) { windows.Present(splash); },
                  [&](FMainControls& mainWindow, Application& application) {
                    events.SetLog(&application.eventLog);
                    LayNet(net, application);
                    windows.Present(mainWindow);
                    KeepHelpInFront(help, mainWindow);
                  }});
  int result = program.mainWindow || !instance ? 0 : kFailure;
  if (program.mainWindow && !program.mainWindow->form.IsUnloaded()) {
    startWithSession.Serve(*program.application);
    result = RunMainWindow(program, bus, activation, windows);
  }
  events.SetLog(nullptr);
  return result;
}

}  // namespace
}  // namespace dayvane

int main(int argc, char** argv) {
  if (!dayvane::HasDisplay()) {
    std::fputs("dayvane: there is no display to show its window on\n", stderr);
    return dayvane::kFailure;
  }
  const dayvane::NetApplication qt(argc, argv);
  QApplication::setApplicationName(QStringLiteral("dayvane"));
  QApplication::setApplicationDisplayName(QString());
  QApplication::setDesktopFileName(QLatin1String(dayvane::activation::kApplicationId));
  QApplication::setWindowIcon(dayvane::PictureIcon(dayvane::kNormalIcon));
  QApplication::setQuitOnLastWindowClosed(false);
  try {
    return dayvane::Run();
  } catch (const std::exception& error) {
    return dayvane::Refuse(error.what());
  }
}
