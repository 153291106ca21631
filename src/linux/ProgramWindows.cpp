// SPDX-License-Identifier: MIT
#include "linux/ProgramWindows.h"

#include <QApplication>
#include <QTimer>

#include "settings/FOptions.h"
#include "shell/FMainControls.h"
#include "shell/FSplash.h"

namespace dayvane::widgets {

ProgramWindows::ProgramWindows(LinuxWindowing& windowing, const platform::DateConventions& dates,
                               LauncherWatch& launcher, TopicHelp topicHelp)
    : m_windowing(windowing), m_dates(dates), m_launcher(launcher), m_topicHelp(std::move(topicHelp)) {
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &m_context, [this] { EndSession(); });
}

ProgramWindows::~ProgramWindows() {
  Close(m_options);
  m_tray.reset();
  Close(m_main);
  Close(m_splash);
}

void ProgramWindows::Present(FSplash& splash) {
  Open(m_splash, splash);
  // Later: it goes by a click on itself.
  splash.form.Unloaded.Connect([this] { QTimer::singleShot(0, &m_context, [this] { Close(m_splash); }); });
}

void ProgramWindows::Present(FMainControls& mainWindow) {
  Open(m_main, mainWindow, m_icons, m_dates);
  m_tray.emplace(mainWindow.tryMain, mainWindow.mnuSysTrayPopup, mainWindow.form, m_trayWatch, m_launcher);
  if (m_sessionEnds) QTimer::singleShot(0, &m_context, [this] { EndSession(); });
  mainWindow.OptionsLoaded.Connect([this](FOptions& options) { Present(options); });
  // Not quit(): that asks every window first, and one that only hides when it is closed would refuse.
  mainWindow.form.Unloaded.Connect([] { QCoreApplication::exit(0); });
}

void ProgramWindows::Present(FOptions& options) {
  Open(m_options, options, &*m_main);
  options.form.Unloaded.Connect([this] { Close(m_options); });
}

void ProgramWindows::EndSession() {
  m_windowing.EndSession();
  m_sessionEnds = true;
  if (m_main) m_main->Presenter().EndSession();
}

template <class Window, class... Arguments>
void ProgramWindows::Open(std::optional<Window>& window, Arguments&&... arguments) {
  Close(window);
  window.emplace(std::forward<Arguments>(arguments)...);
  window->Presenter().SetTopicHelp(m_topicHelp);
  m_windowing.Register(window->Presenter());
}

template <class Window>
void ProgramWindows::Close(std::optional<Window>& window) {
  if (!window) return;
  m_windowing.Forget(window->Presenter());
  window.reset();
}

}  // namespace dayvane::widgets
