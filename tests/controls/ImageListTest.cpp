// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/Error.h"
#include "controls/ImageList.h"

namespace dayvane::controls {
namespace {

Picture Named(const std::string& name) {
  return {{name}, 0};
}

TEST(ImageList, PicturesAreNumberedFromOne) {
  ImageList images;
  EXPECT_EQ(images.Add(Named("a")), 1);
  EXPECT_EQ(images.Add(Named("b")), 2);
  EXPECT_EQ(images.At(2), Named("b"));
  EXPECT_EQ(images.Count(), 2);
}

TEST(ImageList, APictureIsFoundByItsKey) {
  ImageList images;
  images.Add(Named("default"));
  images.Add(Named("a"), "Ka");
  EXPECT_EQ(images.IndexOf("Ka"), 2);
  EXPECT_EQ(images.IndexOf("Kb"), 0);
}

TEST(ImageList, PicturesWithoutAKeyAreNotFoundByAnEmptyOne) {
  ImageList images;
  images.Add(Named("a"));
  images.Add(Named("b"));
  EXPECT_EQ(images.IndexOf(""), 0);
}

TEST(ImageList, TwoPicturesCannotHaveOneKey) {
  ImageList images;
  images.Add(Named("a"), "K");
  EXPECT_THROW(images.Add(Named("b"), "K"), Error);
  EXPECT_EQ(images.Count(), 1);
  EXPECT_EQ(images.At(1), Named("a"));
}

TEST(ImageList, RemovingTheLastKeepsTheOthersNumbersAndFreesItsKey) {
  ImageList images;
  images.Add(Named("a"), "Ka");
  images.Add(Named("b"), "Kb");
  images.RemoveLast();
  EXPECT_EQ(images.IndexOf("Ka"), 1);
  EXPECT_EQ(images.IndexOf("Kb"), 0);
  EXPECT_EQ(images.Add(Named("c"), "Kb"), 2);
}

TEST(ImageList, NumbersThatAreNotThereAreErrors) {
  ImageList images;
  EXPECT_THROW(images.RemoveLast(), Error);
  images.Add(Named("a"));
  EXPECT_THROW((void)images.At(0), Error);
  EXPECT_THROW((void)images.At(2), Error);
}

}  // namespace
}  // namespace dayvane::controls
