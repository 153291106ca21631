#include "linux/help/DesktopHelp.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDir>
#include <QFileInfo>
#include <QStringList>
#include <algorithm>

#include "linux/files/NativePath.h"
#include "linux/help/HelpViewer.h"

namespace dayvane::help {

QString LocateHelpFile(const std::string& helpFile) {
  const QString named = QString::fromStdString(files::ToNative(helpFile).value_or(helpFile));
  const QString executableFolder = QCoreApplication::applicationDirPath();
  const QString name = QStringLiteral("/Dayvane.hlp");
  // Relative to the executable, so that the program can be moved as a whole.
  const QString installed = QDir::cleanPath(executableFolder + QStringLiteral("/" DAYVANE_DATA_FROM_BIN) + name);
  const QStringList places = {named, executableFolder + name, installed};
  const auto found =
      std::find_if(places.begin(), places.end(), [](const QString& place) { return QFileInfo(place).isFile(); });
  return found == places.end() ? named : *found;
}

DesktopHelp::DesktopHelp() = default;
DesktopHelp::~DesktopHelp() = default;

void DesktopHelp::ShowHelp(const std::string& helpFile, int command, int contextId) {
  if (!m_viewer) m_viewer = std::make_unique<HelpViewer>(LocateHelpFile(helpFile));
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
