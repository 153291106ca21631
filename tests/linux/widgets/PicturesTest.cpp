// SPDX-License-Identifier: MIT
#include <QImage>
#include <QSet>
#include <gtest/gtest.h>
#include <vector>

#include "linux/widgets/Pictures.h"
#include "shell/MCommands.h"

namespace dayvane {
namespace {

std::vector<int> EveryPicture() {
  std::vector<int> pictures = {kRepositoryPicture, kYearPicture,   kMonthPicture,           kDayPicture, kNormalIcon,
                               kBusyIcon,          kSuspendedIcon, kDefaultDocumentPicture, kLogoPicture};
  for (const ToolbarRow& row : kToolbarRows)
    if (row.picture != kNoPicture) pictures.push_back(row.picture);
  return pictures;
}

QImage Drawn(int picture, int size) {
  return PictureIcon(picture).pixmap(size, size).toImage().convertToFormat(QImage::Format_ARGB32);
}

bool ShowsOn(const QImage& image, QRgb background) {
  int visible = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      const int difference = std::abs(qGray(pixel) - qGray(background)) * qAlpha(pixel) / 255;
      if (difference > 60) ++visible;
    }
  }
  return visible >= 6;
}

TEST(Pictures, EveryPictureShowsOnALightAndOnADarkBackground) {
  for (int picture : EveryPicture()) {
    for (int size : {16, 22, 32, 64}) {
      EXPECT_TRUE(ShowsOn(Drawn(picture, size), qRgb(240, 240, 240))) << picture << " at " << size;
      EXPECT_TRUE(ShowsOn(Drawn(picture, size), qRgb(45, 45, 45))) << picture << " at " << size;
    }
  }
}

TEST(Pictures, NoTwoPicturesLookAlike) {
  std::vector<QImage> seen;
  for (int picture : EveryPicture()) {
    const QImage image = Drawn(picture, 16);
    for (const QImage& other : seen) EXPECT_NE(image, other) << picture;
    seen.push_back(image);
  }
}

TEST(Pictures, ATrayIconHasThePixelsThatAPanelAsksFor) {
  for (int size : {16, 22, 24, 32}) EXPECT_EQ(PictureIcon(kBusyIcon).actualSize({size, size}), QSize(size, size));
}

TEST(Pictures, TheTrayStatesDifferInShapeAndNotInColourAlone) {
  const QImage normal = Drawn(kNormalIcon, 16);
  const QImage busy = Drawn(kBusyIcon, 16);
  const QImage suspended = Drawn(kSuspendedIcon, 16);
  EXPECT_NE(normal.convertToFormat(QImage::Format_Alpha8), busy.convertToFormat(QImage::Format_Alpha8));
  EXPECT_NE(normal.convertToFormat(QImage::Format_Alpha8), suspended.convertToFormat(QImage::Format_Alpha8));
  EXPECT_NE(busy.convertToFormat(QImage::Format_Alpha8), suspended.convertToFormat(QImage::Format_Alpha8));
}

TEST(Pictures, ANumberWithoutAPictureGivesAnEmptyIcon) {
  EXPECT_TRUE(PictureIcon(kNoPicture).isNull());
  EXPECT_TRUE(PictureIcon(kWhatsThisHelpPicture + 1).isNull());
}

TEST(Pictures, APictureIsDrawnOnceHoweverOftenItIsAskedFor) {
  EXPECT_EQ(PictureIcon(kBusyIcon).cacheKey(), PictureIcon(kBusyIcon).cacheKey());
  EXPECT_NE(PictureIcon(kBusyIcon).cacheKey(), PictureIcon(kNormalIcon).cacheKey());
}

}  // namespace
}  // namespace dayvane
