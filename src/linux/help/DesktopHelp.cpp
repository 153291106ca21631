#include "linux/help/DesktopHelp.h"

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

DesktopHelp::DesktopHelp(std::string resourceFolder) : m_resourceFolder(std::move(resourceFolder)) {}
DesktopHelp::~DesktopHelp() = default;

void DesktopHelp::ShowHelp(const std::string& helpFile, int command, int contextId) {
  if (!m_viewer) m_viewer = std::make_unique<HelpViewer>(LocateHelpFile(helpFile, m_resourceFolder));
  switch (command) {
    case platform::kHelpContext:
      m_viewer->ShowTopic(contextId);
      break;
    case platform::kHelpContextPopup:
      m_viewer->ShowPopup(contextId, QCursor::pos());
      break;
    default:
      m_viewer->ShowContents();
  }
}

}  // namespace dayvane::help
