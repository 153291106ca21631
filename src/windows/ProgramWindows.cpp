// SPDX-License-Identifier: MIT
#include "windows/ProgramWindows.h"

#include <utility>

#include "settings/FOptions.h"
#include "shell/FMainControls.h"
#include "shell/FSplash.h"

namespace dayvane::widgets {

ProgramWindows::ProgramWindows(WindowsWindowing& windowing, const platform::DateConventions& dates, TopicHelp topicHelp,
                               TrayIcon::Shell shell)
    : m_windowing(windowing), m_dates(dates), m_topicHelp(std::move(topicHelp)), m_shell(std::move(shell)) {}

ProgramWindows::~ProgramWindows() {
  Close(m_options);
  m_tray.reset();
  Close(m_main);
  Close(m_splash);
}

void ProgramWindows::Present(FSplash& splash) {
  Open(m_splash, splash);
  // Later: it goes by a click on itself.
  splash.form.Unloaded.Connect([this] { m_later.Do([this] { Close(m_splash); }); });
}

void ProgramWindows::Present(FMainControls& mainWindow) {
  Open(m_main, mainWindow, m_icons, m_dates);
  m_tray.emplace(mainWindow.tryMain, mainWindow.form, m_shell);
  if (m_sessionEnds) m_later.Do([this] { EndSession(); });
  mainWindow.OptionsLoaded.Connect([this](FOptions& options) { Present(options); });
  mainWindow.form.Unloaded.Connect([] { PostQuitMessage(0); });
}

void ProgramWindows::Present(FOptions& options) {
  Open(m_options, options, m_main->Handle());
  options.form.Unloaded.Connect([this] { Close(m_options); });
}

void ProgramWindows::EndSession() {
  m_windowing.EndSession();
  m_sessionEnds = true;
  if (m_main) m_main->Presenter().EndSession();
}

void ProgramWindows::HearOfSession(SessionNews news) {
  if (news == SessionNews::MayEnd) m_windowing.EndSession();
  if (news == SessionNews::GoesOn) m_windowing.SessionGoesOn();
  if (news == SessionNews::Ends) EndSession();
}

template <class Window, class... Arguments>
void ProgramWindows::Open(std::optional<Window>& window, Arguments&&... arguments) {
  Close(window);
  window.emplace(std::forward<Arguments>(arguments)...);
  window->Presenter().SetTopicHelp(m_topicHelp);
  window->Presenter().SetSessionListener([this](SessionNews news) { HearOfSession(news); });
  m_windowing.Register(window->Presenter());
}

template <class Window>
void ProgramWindows::Close(std::optional<Window>& window) {
  if (!window) return;
  m_windowing.Forget(window->Presenter());
  window.reset();
}

}  // namespace dayvane::widgets
