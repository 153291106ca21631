// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "resources/StringTable.h"

namespace dayvane {
namespace {

std::string Text(int number) {
  return ResourceString(static_cast<StringId>(number));
}

TEST(StringTable, ThePurgeQuestionIsWordedAsUsersKnowIt) {
  EXPECT_EQ(Text(102), "There are shortcuts to programs and documents");
  EXPECT_EQ(Text(103), "that you accessed prior to ");
  EXPECT_EQ(Text(104), "Do you want to remove these shortcuts from Dayvane?");
  EXPECT_EQ(Text(105), "(The programs and documents will NOT be deleted.)");
}

TEST(StringTable, OpeningADocumentSaysWhyItFailed) {
  EXPECT_EQ(Text(109), "An operating system error occurred.");
  EXPECT_EQ(Text(110), "The document ");
  EXPECT_EQ(Text(111), "was not found. Remove this link?");
  EXPECT_EQ(Text(112), "The path ");
  EXPECT_EQ(Text(113), "was not found. Remove this link?");
  EXPECT_EQ(Text(114), "Document of this file type");
  EXPECT_EQ(Text(115), "are no longer associated with a program.");
}

TEST(StringTable, TheViewsAreDailyAndFavorites) {
  EXPECT_EQ(Text(116), "Daily");
  EXPECT_EQ(Text(117), "Favorites");
}

TEST(StringTable, TheVersionPrefixEndsWithABlank) {
  EXPECT_EQ(Text(108), "Version ");
}

TEST(StringTable, ErrorReportsHaveAPhraseForEveryAction) {
  EXPECT_EQ(Text(118), "An error occurred ");
  EXPECT_EQ(Text(119), "starting the program.");
  EXPECT_EQ(Text(120), "finding the latest day with documents.");
  EXPECT_EQ(Text(121), "exiting or hiding the main window.");
  EXPECT_EQ(Text(122), "resizing the main window.");
  EXPECT_EQ(Text(123), "saving the current settings.");
  EXPECT_EQ(Text(124), "selecting a date.");
  EXPECT_EQ(Text(125), "opening a document.");
  EXPECT_EQ(Text(126), "processing a document selection.");
  EXPECT_EQ(Text(127), "displaying a context menu.");
  EXPECT_EQ(Text(128), "arranging icons.");
  EXPECT_EQ(Text(129), "setting the document view.");
  EXPECT_EQ(Text(130), "hiding, suspending, or resuming.");
  EXPECT_EQ(Text(131), "displaying help.");
  EXPECT_EQ(Text(133), "loading a Web page.");
  EXPECT_EQ(Text(134), "displaying the About Box.");
  EXPECT_EQ(Text(135), "hiding, showing, suspending, or resuming.");
  EXPECT_EQ(Text(136), "Exploring the document's folder.");
  EXPECT_EQ(Text(137), "purging a day.");
  EXPECT_EQ(Text(138), "setting the active view.");
  EXPECT_EQ(Text(139), "setting options.");
  EXPECT_EQ(Text(140), "opening the document's folder.");
  EXPECT_EQ(Text(141), "checking for new documents.");
  EXPECT_EQ(Text(142), "changing the document sort order.");
  EXPECT_EQ(Text(143), "selecting text.");
  EXPECT_EQ(Text(144), "validating an entry.");
  EXPECT_EQ(Text(145), "entering a value.");
  EXPECT_EQ(Text(154), "rebuilding the Favorites list.");
}

TEST(StringTable, AnOptionOutOfRangeIsExplained) {
  EXPECT_EQ(Text(146), "The Favorites Threshhold must be 1 or more.");
  EXPECT_EQ(Text(147), "The Purge age must be 1 or more.");
  EXPECT_EQ(Text(148), "The Timer Interval must be between 1 and 60.");
}

TEST(StringTable, TheFirstRunIsWelcomedInFourLines) {
  EXPECT_EQ(Text(149), "Welcome to Dayvane.");
  EXPECT_EQ(Text(150), "We suggest that you review the default settings");
  EXPECT_EQ(Text(151), "by selecting the View|Options menu choice.");
  EXPECT_EQ(Text(152), "Would you like to view the help file?");
}

TEST(StringTable, TheProgramSaysWhenItIsBusyOrAlreadyRunning) {
  EXPECT_EQ(Text(153), "Dayvane is already loaded.");
  EXPECT_EQ(Text(155), "Please wait...");
}

TEST(StringTable, TheLegalWarningNamesTheLicenceAndTheLackOfWarranty) {
  EXPECT_NE(Text(101).find("MIT License"), std::string::npos);
  EXPECT_NE(Text(101).find("without warranty"), std::string::npos);
}

TEST(StringTable, ANumberWithoutATextGivesAnEmptyOne) {
  for (int number : {-1, 0, 100, 106, 107, 132, 156}) EXPECT_EQ(Text(number), "") << number;
}

}  // namespace
}  // namespace dayvane
