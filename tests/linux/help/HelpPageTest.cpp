// SPDX-License-Identifier: MIT
#include <QTextDocument>
#include <gtest/gtest.h>

#include "linux/help/HelpPage.h"

namespace dayvane::help {
namespace {

const std::string kSquare =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 10 20"><path d="M0 0h10v20H0z"/></svg>)";

HelpFile FileWithPicture() {
  const std::string size = std::to_string(kSquare.size());
  return HelpFile::Parse("Dayvane help 1\ntopic 2 home\nA\n\npicture " + size + " square.svg\n" + kSquare +
                         "\ncontents 4\nhome\nend\n");
}

QSize PictureSize(const char* url, qreal pixelsPerPoint = 1) {
  return PagePicture(FileWithPicture(), QUrl(url), pixelsPerPoint).size();
}

TEST(HelpPage, APictureIsDrawnInTheSizeOfItsAddress) {
  EXPECT_EQ(PictureSize("square.svg?30x60"), QSize(30, 60));
  EXPECT_EQ(PictureSize("help:/square.svg?30x60"), QSize(30, 60));
}

TEST(HelpPage, APictureWithoutASizeHasItsOwn) {
  EXPECT_EQ(PictureSize("square.svg"), QSize(10, 20));
  EXPECT_EQ(PictureSize("square.svg?x"), QSize(10, 20));
  EXPECT_EQ(PictureSize("square.svg?0x-5"), QSize(10, 20));
}

TEST(HelpPage, APictureHasThePixelsOfAFineScreen) {
  EXPECT_EQ(PictureSize("square.svg?30x60", 2), QSize(60, 120));
}

TEST(HelpPage, ALyingPictureSizeIsKeptWithinBounds) {
  EXPECT_EQ(PictureSize("square.svg?999999x999999"), QSize(2000, 2000));
}

TEST(HelpPage, AnUnknownPictureIsEmpty) {
  EXPECT_TRUE(PagePicture(FileWithPicture(), QUrl("round.svg"), 1).isNull());
}

TEST(HelpPage, ATitleIsTextAndNotMarkup) {
  QTextDocument page;
  page.setHtml(TopicPage({"a", "Tom & <b>Jerry</b>", "<p>Text</p>", "Text"}, QPalette()));
  EXPECT_EQ(page.toPlainText(), "Tom & <b>Jerry</b>\nText");
}

TEST(HelpPage, LinksCanBeReadOnADarkPageWhosePaletteKeptTheBlueOfALightOne) {
  QPalette dark(QColor(50, 50, 50));
  dark.setColor(QPalette::Base, QColor(35, 35, 35));
  dark.setColor(QPalette::Link, QColor(0, 0, 255));
  const QString page = TopicPage({"a", "Title", "<p><a href=\"b\">b</a></p>", "b"}, dark);
  EXPECT_FALSE(page.contains("#0000ff"));
}

}  // namespace
}  // namespace dayvane::help
