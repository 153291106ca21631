// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/Help.h"
#include "windows/files/Win32.h"

namespace dayvane::help {

class HelpViewer;

/// The program's help, in a window of its own that is made when it is first asked for.
class WindowsHelp : public platform::Help {
 public:
  WindowsHelp();
  ~WindowsHelp() override;

  /// A command other than those of platform/Help.h shows the contents.
  void ShowHelp(const std::string& helpFile, int command, int contextId) override;

  /// Brings the window, if it is open, before those that were shown since.
  void BringToFront();

  /// Explains a control in a small window at a point of the screen.
  void ShowPopup(const std::string& helpFile, int contextId, POINT at);

 private:
  HelpViewer& Viewer(const std::string& helpFile);

  std::unique_ptr<HelpViewer> m_viewer;
};

}  // namespace dayvane::help
