#include "linux/widgets/PictureFiles.h"

#include <QFile>
#include <QHash>

#include "shell/MResourceConstants.h"

namespace dayvane::widgets {

namespace {

QString FileOf(int picture) {
  static const QHash<int, QString> kFiles{{kRepositoryPicture, QStringLiteral("tree-repository")},
                                          {kYearPicture, QStringLiteral("tree-year")},
                                          {kMonthPicture, QStringLiteral("tree-month")},
                                          {kDayPicture, QStringLiteral("tree-day")},
                                          {kNormalIcon, QStringLiteral("dayvane")},
                                          {kBusyIcon, QStringLiteral("tray-busy")},
                                          {kSuspendedIcon, QStringLiteral("tray-suspended")},
                                          {kDefaultDocumentPicture, QStringLiteral("document")}};
  return kFiles.value(picture);
}

}  // namespace

QIcon PictureIcon(int picture) {
  const QString file = QStringLiteral(":/pictures/%1.svg").arg(FileOf(picture));
  return QFile::exists(file) ? QIcon(file) : QIcon();
}

}  // namespace dayvane::widgets
