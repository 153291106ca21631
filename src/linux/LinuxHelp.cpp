// SPDX-License-Identifier: MIT
#include "linux/LinuxHelp.h"

#include <QCursor>
#include <QDir>
#include <QFileInfo>

#include "linux/files/NativePath.h"
#include "linux/help/HelpViewer.h"

namespace dayvane::help {

QString LocateHelpFile(const std::string& helpFile, const std::string& resourceFolder) {
  QString named = QString::fromStdString(files::ToNative(helpFile).value_or(helpFile));
  if (QFileInfo(named).isFile()) return named;
  return QDir(QString::fromStdString(resourceFolder)).filePath(QFileInfo(named).fileName());
}

LinuxHelp::LinuxHelp(std::string resourceFolder) : m_resourceFolder(std::move(resourceFolder)) {}
LinuxHelp::~LinuxHelp() = default;

void LinuxHelp::ShowHelp(const std::string& helpFile, int command, int contextId) {
  switch (command) {
    case platform::kHelpContext:
      Viewer(helpFile).ShowTopic(contextId);
      break;
    case platform::kHelpContextPopup:
      ShowPopup(helpFile, contextId, QCursor::pos());
      break;
    default:
      Viewer(helpFile).ShowContents();
  }
}

void LinuxHelp::ShowPopup(const std::string& helpFile, int contextId, const QPoint& at) {
  Viewer(helpFile).ShowPopup(contextId, at);
}

void LinuxHelp::BringToFront() {
  if (!m_viewer || !m_viewer->isVisible()) return;
  m_viewer->raise();
  m_viewer->activateWindow();
}

HelpViewer& LinuxHelp::Viewer(const std::string& helpFile) {
  if (!m_viewer) m_viewer = std::make_unique<HelpViewer>(LocateHelpFile(helpFile, m_resourceFolder));
  return *m_viewer;
}

}  // namespace dayvane::help
