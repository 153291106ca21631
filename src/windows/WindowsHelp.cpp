// SPDX-License-Identifier: MIT
#include "windows/WindowsHelp.h"

#include "windows/help/HelpViewer.h"

namespace dayvane::help {

WindowsHelp::WindowsHelp() = default;
WindowsHelp::~WindowsHelp() = default;

void WindowsHelp::ShowHelp(const std::string& helpFile, int command, int contextId) {
  switch (command) {
    case platform::kHelpContext:
      Viewer(helpFile).ShowTopic(contextId);
      break;
    case platform::kHelpContextPopup: {
      POINT pointer{};
      GetCursorPos(&pointer);
      ShowPopup(helpFile, contextId, pointer);
      break;
    }
    default:
      Viewer(helpFile).ShowContents();
  }
}

void WindowsHelp::ShowPopup(const std::string& helpFile, int contextId, POINT at) {
  Viewer(helpFile).ShowPopup(contextId, at);
}

void WindowsHelp::BringToFront() {
  if (m_viewer && m_viewer->IsOpen()) m_viewer->BringToFront();
}

HelpViewer& WindowsHelp::Viewer(const std::string& helpFile) {
  if (!m_viewer) m_viewer = std::make_unique<HelpViewer>(helpFile);
  return *m_viewer;
}

}  // namespace dayvane::help
