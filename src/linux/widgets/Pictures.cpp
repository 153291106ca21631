// SPDX-License-Identifier: MIT
#include "linux/widgets/Pictures.h"

#include <QCoreApplication>
#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QString>
#include <QSvgRenderer>
#include <algorithm>
#include <iterator>

#include "resources/MResourceConstants.h"

namespace dayvane {

namespace {

struct PictureFile {
  int picture = kNoPicture;
  const char* name = nullptr;
  bool drawnPerSize = false;  ///< has drawings of its own for 16 and 22 pixels
};

constexpr PictureFile kFiles[] = {
    {kRepositoryPicture, "tree-repository"},
    {kYearPicture, "tree-year"},
    {kMonthPicture, "tree-month"},
    {kDayPicture, "tree-day"},
    {kLogoPicture, "logo"},
    {kNormalIcon, "dayvane", true},
    {kBusyIcon, "tray-busy", true},
    {kSuspendedIcon, "tray-suspended", true},
    {kDefaultDocumentPicture, "document"},
    {kInformationPicture, "message-information"},
    {kQuestionPicture, "message-question"},
    {kWarningPicture, "message-warning"},
    {kSuspendedPicture, "status-suspended"},
    {kDailyViewPicture, "toolbar-daily"},
    {kFavoritesViewPicture, "toolbar-favorites"},
    {kExploreFolderPicture, "toolbar-explore"},
    {kOpenFolderPicture, "toolbar-open"},
    {kFindDocumentPicture, "toolbar-find"},
    {kLargeIconViewPicture, "toolbar-large-icons"},
    {kSmallIconViewPicture, "toolbar-small-icons"},
    {kListViewPicture, "toolbar-list"},
    {kDetailViewPicture, "toolbar-details"},
    {kMainWindowHelpPicture, "toolbar-help"},
    {kWhatsThisHelpPicture, "toolbar-whats-this"},
};

/// A size of a picture drawn per size and the drawing whose lines fall on whole pixels there.
struct DrawnSize {
  int pixels;
  const char* drawing;
  int drawnPixels;  ///< the rest is an even margin
};

constexpr DrawnSize kDrawnSizes[] = {{16, "-16", 16}, {22, "-22", 22}, {24, "-22", 22},
                                     {32, "-16", 32}, {44, "-22", 44}, {48, "", 48},
                                     {64, "", 64},    {128, "", 128},  {256, "", 256}};

QString ResourcePath(const char* name, const char* drawing) {
  return QStringLiteral(":/pictures/%1%2.svg").arg(QLatin1String(name), QLatin1String(drawing));
}

QPixmap Render(const QString& path, const DrawnSize& size) {
  QPixmap pixmap(size.pixels, size.pixels);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  const int margin = (size.pixels - size.drawnPixels) / 2;
  QSvgRenderer(path).render(&painter, QRectF(margin, margin, size.drawnPixels, size.drawnPixels));
  return pixmap;
}

/// A notification area asks for the sizes that an icon has and scales what it gets, so these are pixmaps: a drawing
/// made for 64 pixels is a smudge in a panel of 16.
QIcon IconDrawnPerSize(const char* name) {
  QIcon icon;
  for (const DrawnSize& size : kDrawnSizes) icon.addPixmap(Render(ResourcePath(name, size.drawing), size));
  return icon;
}

}  // namespace

QIcon PictureIcon(int picture) {
  // Drawn once each: an icon keeps the pixmaps it was asked for, and everything that shows it shares them.
  static QHash<int, QIcon> icons;
  const auto known = icons.constFind(picture);
  if (known != icons.constEnd()) return *known;
  const auto* file =
      std::find_if(std::begin(kFiles), std::end(kFiles), [&](const PictureFile& f) { return f.picture == picture; });
  if (file == std::end(kFiles)) return {};
  if (icons.isEmpty()) qAddPostRoutine([] { icons.clear(); });  // no pixmap may outlive the application
  return *icons.insert(picture,
                       file->drawnPerSize ? IconDrawnPerSize(file->name) : QIcon(ResourcePath(file->name, "")));
}

}  // namespace dayvane
