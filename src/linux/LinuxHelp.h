// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>
#include <memory>
#include <string>

#include "platform/Help.h"

namespace dayvane::help {

class HelpViewer;

/// Native path of the help file that the program names. The program looks for it in its own folder, but an installed
/// program has the user's data there and what came with it in `resourceFolder`, a native path. Where neither has the
/// file, it is the second that should.
QString LocateHelpFile(const std::string& helpFile, const std::string& resourceFolder);

/// The program's help, in a window of its own that is made when it is first asked for.
class LinuxHelp : public platform::Help {
 public:
  explicit LinuxHelp(std::string resourceFolder);
  ~LinuxHelp() override;

  /// A command other than those of platform/Help.h shows the contents.
  void ShowHelp(const std::string& helpFile, int command, int contextId) override;

  /// Brings the window, if it is open, before those that were shown since.
  void BringToFront();

  /// Explains a control in a small window at a point of the screen.
  void ShowPopup(const std::string& helpFile, int contextId, const QPoint& at);

 private:
  HelpViewer& Viewer(const std::string& helpFile);

  std::string m_resourceFolder;
  std::unique_ptr<HelpViewer> m_viewer;
};

}  // namespace dayvane::help
