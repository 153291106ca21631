// SPDX-License-Identifier: MIT
#include "app/Application.h"

#include <utility>

#include "resources/StringTable.h"

namespace dayvane {

ProgramInfo ThisProgram() {
  ProgramInfo info;
  info.title = "Dayvane";
  info.company = "Korvath";
  info.copyright = "Copyright \xC2\xA9 2026 The Dayvane authors";
  info.comments = ResourceString(kLegalWarning);
  info.major = DAYVANE_VERSION_MAJOR;
  info.minor = DAYVANE_VERSION_MINOR;
  info.revision = DAYVANE_VERSION_REVISION;
  info.homePage = DAYVANE_HOME_PAGE;
  return info;
}

std::string ProgramInfo::VersionText() const {
  return ResourceString(kVersionPrefix) + std::to_string(major) + "." + std::to_string(minor) + "." +
         std::to_string(revision);
}

platform::About ProgramInfo::About() const {
  return {title, VersionText(), company, copyright, comments, homePage};
}

Application::Application(const platform::Desktop& theDesktop, std::string programFolder)
    : desktop(theDesktop),
      info(ThisProgram()),
      folder(std::move(programFolder)),
      helpFile(folder + "\\Dayvane.hlp"),
      errorReporter(desktop.files, desktop.clock, desktop.windowing, folder + "\\" + "ErrorLog.txt"),
      eventLog(desktop.files, desktop.clock, folder + "\\EventLog.txt"),
      asserts(eventLog),
      shellServices(desktop, folder) {}

void Application::Tell(const std::string& text) const {
  desktop.windowing.ShowMessage({text, info.title, platform::MessageButtons::Ok, platform::MessageIcon::Information});
}

bool Application::Ask(const std::string& question, platform::MessageIcon icon) const {
  const auto answer = desktop.windowing.ShowMessage({question, info.title, platform::MessageButtons::YesNo, icon});
  return answer == platform::MessageAnswer::Yes;
}

}  // namespace dayvane
