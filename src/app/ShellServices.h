// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "app/Date.h"
#include "platform/Desktop.h"

namespace dayvane {

/// The parts of a full path: "Z:\home\ana\Report.odt" has the folder "Z:\home\ana", the file name "Report.odt" and the
/// extension "odt".
struct PathParts {
  std::string folder;     ///< without a trailing "\", so that folder + "\" + file name is the path again
  std::string fileName;   ///< with its extension
  std::string extension;  ///< without the "."
};

PathParts SplitPath(std::string_view path);

/// Whether a shortcut is one that the program has made to a program: the program stands for its working folder too,
/// which no document does.
bool LeadsToProgram(const platform::ShellLink& link);

/// The one object through which the program reaches the shell: special folders, shortcut files, and a few utilities.
/// It keeps nothing between calls. Failures are Errors of the calling procedure.
class ShellServices {
 public:
  static constexpr const char* ClassName = "ShellServices";

  /// `programFolder` serves as the default working folder.
  ShellServices(const platform::Desktop& desktop, std::string programFolder)
      : m_desktop(desktop), m_programFolder(std::move(programFolder)) {}

  /// Full path of a special folder; platform::kRecentFolder is the user's Recent folder.
  std::string SpecialFolderPath(int number) const { return m_desktop.shell.SpecialFolderPath(number); }

  /// Brings the Recent folder up to date where the desktop keeps none of its own.
  void RefreshRecentFolder() const { m_desktop.shell.RefreshRecentFolder(); }

  /// All that the Recent folder held when last listed has been filed.
  void RecentFolderCaptured() const { m_desktop.shell.RecentFolderCaptured(); }

  platform::ReadLink ReadShortcut(const std::string& path) const { return m_desktop.shell.ReadShellLink(path); }

  /// A shortcut with empty arguments and a normal window.
  void CreateShortcut(const std::string& path, const std::string& target, const std::string& workingFolder) const;

  PathParts SplitPath(std::string_view path) const { return dayvane::SplitPath(path); }
  DateParts SplitDate(std::string_view shortDate) const { return SplitShortDate(shortDate, m_desktop.dates); }
  std::string WindowsFolder() const { return m_desktop.shell.WindowsFolder(); }

  template <class Number>
  static Number LargerOf(Number a, Number b) {
    return a < b ? b : a;
  }

  /// A digit, or one of the control characters of editing: Backspace, Ctrl+C, Ctrl+V, Ctrl+X, Ctrl+Z, Ctrl+A.
  static bool IsNumericKey(int character);

  const std::string& DefaultWorkingFolder() const { return m_programFolder; }

  /// The shell's result code, see platform::Shell::Open.
  int Open(const std::string& target, const std::string& workingFolder, std::int32_t showCommand) const {
    return m_desktop.shell.Open(target, workingFolder, showCommand);
  }

  /// Starts the desktop's explorer with these arguments.
  void RunExplorer(const std::string& arguments) const {
    m_desktop.shell.Run(WindowsFolder() + "\\EXPLORER.EXE " + arguments);
  }

  std::string DisplayPath(const std::string& path) const { return m_desktop.shell.DisplayPath(path); }

 private:
  const platform::Desktop& m_desktop;
  std::string m_programFolder;
};

}  // namespace dayvane
