// SPDX-License-Identifier: MIT
#include "tests/support/ProgramRuns.h"

namespace dayvane::testing {

ProgramRuns::ProgramRuns() {
  desktop.registry.Settings("Options") = {{"Favorites Threshold", "1"}, {"Purge Age", "30"}, {"Timer Interval", "60"}};
}

void ProgramRuns::Start() {
  Kill();
  m_application = std::make_unique<Application>(desktop.desktop, desktop.Folder());
  m_repository = std::make_unique<CRepository>(*m_application);
  m_window = std::make_unique<FMain>(*m_application, *m_repository);
  m_window->Form_Load();
}

void ProgramRuns::Exit() {
  m_window->form.RequestUnload(controls::UnloadMode::SystemSession);
  Kill();
}

void ProgramRuns::Kill() {
  m_window.reset();
  m_repository.reset();
  m_application.reset();
}

void ProgramRuns::LetLive() {
  desktop.files.beforeChange = [](const std::string&) {};
}

}  // namespace dayvane::testing
