// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "resources/MResourceConstants.h"
#include "windows/launch/SystemIcon.h"
#include "windows/widgets/Icons.h"
#include "windows/widgets/Pictures.h"

namespace dayvane::widgets {
namespace {

int WidthOf(HICON icon) {
  ICONINFO info{};
  GetIconInfo(icon, &info);
  const Bitmap colour(info.hbmColor);
  const Bitmap mask(info.hbmMask);
  BITMAP bitmap{};
  GetObjectW(colour.get(), sizeof bitmap, &bitmap);
  return bitmap.bmWidth;
}

TEST(WindowsPictures, EveryPictureHasAnIconInTheSizeThatIsAskedFor) {
  for (const int picture : {1, 4, 101, 102, 103, 104, 110, 120, 123, 200, 201, 203, 206, 211})
    for (const int pixels : {16, 24, 48}) EXPECT_EQ(WidthOf(PictureIcon(picture, pixels).get()), pixels) << picture;
}

TEST(WindowsPictures, ANumberWithoutAPictureHasNoIcon) {
  EXPECT_EQ(PictureIcon(kNoPicture, 16), nullptr);
  EXPECT_EQ(PictureIcon(99, 16), nullptr);
  EXPECT_EQ(PictureIcon(70000, 16), nullptr);
}

TEST(WindowsIcons, APictureIsOneImageHoweverOftenItIsAskedFor) {
  Icons icons;
  const int day = icons.IndexOf({{}, kDayPicture}, 16);

  EXPECT_NE(icons.IndexOf({{}, kYearPicture}, 16), day);
  EXPECT_EQ(icons.IndexOf({{}, kDayPicture}, 16), day);
  EXPECT_EQ(ImageList_GetImageCount(icons.ImagesOf(16)), 2);
}

TEST(WindowsIcons, ImagesAreAsLargeAsTheirList) {
  Icons icons;
  icons.IndexOf({{}, kDayPicture}, 24);
  int width = 0;
  int height = 0;

  ImageList_GetIconSize(icons.ImagesOf(24), &width, &height);

  EXPECT_EQ(width, 24);
  EXPECT_EQ(WidthOf(Icon(ImageList_GetIcon(icons.ImagesOf(24), 0, ILD_TRANSPARENT)).get()), 24);
}

TEST(WindowsIcons, AnIconOfTheShellStandsAmongTheProgramsOwn) {
  Icons icons;
  SHFILEINFOW info{};
  SHGetFileInfoW(L"x.txt", FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                 SHGFI_SYSICONINDEX | SHGFI_USEFILEATTRIBUTES | SHGFI_SMALLICON);

  const int own = icons.IndexOf({{}, kDefaultDocumentPicture}, 16);
  const int shells = icons.IndexOf({{launch::SystemIconName(info.iIcon)}, 0}, 16);

  EXPECT_NE(shells, own);
  EXPECT_GE(shells, 0);
}

TEST(WindowsIcons, WhatHasNoIconIsADocument) {
  Icons icons;
  controls::ImageList images;
  images.Add({{"system:99999"}, 0});
  images.Add({{"system:-1", "system:", "text-plain"}, 0});

  EXPECT_GE(icons.IndexOf(&images, 1, 16), 0);
  EXPECT_GE(icons.IndexOf(&images, 2, 16), 0);
  EXPECT_EQ(icons.IndexOf(&images, 3, 16), icons.IndexOf(nullptr, 1, 16));
}

}  // namespace
}  // namespace dayvane::widgets
