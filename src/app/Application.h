// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "app/CAssert.h"
#include "app/ErrorReporter.h"
#include "app/EventLogWriter.h"
#include "app/ShellServices.h"
#include "platform/Desktop.h"

namespace dayvane {

namespace controls {
class Form;
}

/// The program's name and version, as the splash window and the about box show them.
struct ProgramInfo {
  std::string title;
  std::string company;
  std::string copyright;
  std::string comments;
  int major = 0;
  int minor = 0;
  int revision = 0;
  std::string homePage;  ///< web address

  std::string VersionText() const;  ///< "Version 1.0.12"
  platform::About About() const;
};

/// This build's.
ProgramInfo ThisProgram();

/// The process-wide objects. Main creates one before any window and it outlives them all; every class is handed it.
class Application {
 public:
  /// `folder` is the program folder, without a trailing "\": the logs, the data file and the repository lie there.
  Application(const platform::Desktop& desktop, std::string folder);
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  const platform::Desktop& desktop;
  const ProgramInfo info;
  const std::string folder;
  const std::string helpFile;
  ErrorReporter errorReporter;
  EventLogWriter eventLog;
  CAssert asserts;
  ShellServices shellServices;

  /// Month names of the languages that the record was ever kept in. The repository learns them from the settings.
  std::vector<platform::MonthNames> monthLanguages;

  /// The window whose pointer a wait cursor changes: a modal form while one is shown, else the main window.
  controls::Form* activeForm = nullptr;

  Date Now() const { return desktop.clock.Now(); }

  /// Message boxes with the program's title: one that tells something, and one whose answer is whether it was Yes.
  void Tell(const std::string& text) const;
  bool Ask(const std::string& question, platform::MessageIcon icon) const;
};

}  // namespace dayvane
