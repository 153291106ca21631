// SPDX-License-Identifier: MIT
#include "linux/widgets/Icons.h"

#include "linux/widgets/Pictures.h"
#include "resources/MResourceConstants.h"

namespace dayvane::widgets {

namespace {

QString NameOf(const controls::Picture& picture) {
  QString name = QString::number(picture.resource);
  for (const std::string& icon : picture.iconNames) name += u'\n' + QString::fromStdString(icon);
  return name;
}

}  // namespace

QIcon Icons::Of(const controls::Picture& picture) const {
  const QString name = NameOf(picture);
  const auto found = m_found.constFind(name);
  return found != m_found.constEnd() ? *found : *m_found.insert(name, Find(picture));
}

QIcon Icons::Of(const controls::ImageList* images, int number) const {
  if (images == nullptr || number < 1 || number > images->Count()) return Of(controls::Picture{});
  return Of(images->At(number));
}

QIcon Icons::Find(const controls::Picture& picture) const {
  for (const std::string& name : picture.iconNames)
    if (QIcon icon = QIcon::fromTheme(QString::fromStdString(name)); !icon.isNull()) return icon;
  const QIcon own = PictureIcon(picture.resource);
  return own.isNull() ? PictureIcon(kDefaultDocumentPicture) : own;
}

}  // namespace dayvane::widgets
