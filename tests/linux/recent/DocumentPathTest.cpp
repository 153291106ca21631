// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "linux/recent/DocumentPath.h"

namespace dayvane::recent {
namespace {

TEST(DocumentPath, EscapesAreDecodedToBytes) {
  EXPECT_EQ(DocumentPath("file:///home/ana/docs/second%20file%20%231%20%C3%A9.txt"),
            "/home/ana/docs/second file #1 \xC3\xA9.txt");
  EXPECT_EQ(DocumentPath("file:///a%FF%FEb"),
            "/a\xFF\xFE"
            "b");
  EXPECT_EQ(DocumentPath("file:///a%0Ab%5Cc%22d%25e"), "/a\nb\\c\"d%e");
}

TEST(DocumentPath, TheSpellingsOfGtkAndKdeAreOnePath) {
  EXPECT_EQ(DocumentPath("file:///home/a%3Bb%5Bc%5D.txt"), "/home/a;b[c].txt");
  EXPECT_EQ(DocumentPath("file:///home/a;b[c].txt"), "/home/a;b[c].txt");
}

TEST(DocumentPath, OtherFormsOfALocalAddressAreThatPathToo) {
  for (const char* href : {"file:///x/y", "file:/x/y", "FILE:///x/y", "file://localhost/x/y", "file:///x/y/",
                           "file:////x//y", "file://LOCALHOST/x/y"})
    EXPECT_EQ(DocumentPath(href), "/x/y") << href;
}

TEST(DocumentPath, AQuestionMarkIsPartOfTheName) {
  EXPECT_EQ(DocumentPath("file:///x?y=1"), "/x?y=1");
}

TEST(DocumentPath, RawCharactersAreTakenAsTheyAre) {
  EXPECT_EQ(DocumentPath("file:///a b\\c\xC3\xA9"), "/a b\\c\xC3\xA9");
}

TEST(DocumentPath, WhatIsNoFileOfThisMachineHasNoPath) {
  for (const char* href : {"", "/home/ana/x", "http://example.org/x", "smb://server/x", "sftp://host/x", "trash:///x",
                           "recent:///x", "file://otherhost/x", "file:///x#1", "file:///x%zz", "file:///x%",
                           "file:///x%00y", "file:///x%2Fy", "file:///", "file:x"})
    EXPECT_EQ(DocumentPath(href), std::nullopt) << href;
}

TEST(DocumentPath, APathLongerThanTheSystemTakesIsNone) {
  EXPECT_EQ(DocumentPath("file:///" + std::string(5000, 'x')), std::nullopt);
}

TEST(DocumentPath, TheTrashIsFoundAtHomeAndOnOtherDisks) {
  for (const char* path : {"/home/ana/.local/share/Trash/files/a.txt", "/data/ana/Trash/files/a.txt",
                           "/media/usb/.Trash-1000/files/a.txt", "/media/usb/.Trash/1000/files/a.txt"})
    EXPECT_TRUE(LiesInTrash(path, "/data/ana")) << path;
}

TEST(DocumentPath, NamesThatOnlyLookLikeTrashAreDocuments) {
  for (const char* path : {"/home/ana/Trash/a.txt", "/home/ana/.Trash-1000", "/home/ana/.Trash-old/a.txt",
                           "/home/ana/.Trashes/a.txt", "/data/ana/Trash", "/data/anabel/Trash/a.txt"})
    EXPECT_FALSE(LiesInTrash(path, "/data/ana")) << path;
}

}  // namespace
}  // namespace dayvane::recent
