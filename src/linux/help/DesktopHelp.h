#pragma once

#include <QString>
#include <memory>

#include "platform/Help.h"

namespace dayvane::help {

class HelpViewer;

/// Native path of the help file that the program names: where the program says, or else beside the executable (a build
/// that was not installed), or else where it was installed. When there is none, the first of these places.
QString LocateHelpFile(const std::string& helpFile);

/// The program's help, in a window of its own that is made when it is first asked for.
class DesktopHelp : public platform::Help {
 public:
  DesktopHelp();
  ~DesktopHelp() override;

  /// A command other than those of platform/Help.h shows the contents.
  void ShowHelp(const std::string& helpFile, int command, int contextId) override;

 private:
  std::unique_ptr<HelpViewer> m_viewer;
};

}  // namespace dayvane::help
