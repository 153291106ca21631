// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "base/Error.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestFiles.h"
#include "views/FavoritesJournal.h"

namespace dayvane::favorites {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::ReadFile;

class FavoritesJournalTest : public ::testing::Test {
 protected:
  testing::TemporaryFolder m_folder;
  testing::TestFiles m_files;
  FavoritesJournal m_journal{m_files, m_folder.Path() + "\\Favorites.pending"};
};

TEST_F(FavoritesJournalTest, WhatWasAddedIsReadInItsOrder) {
  m_journal.Begin("7-1", {"Z:\\Daily\\a b.lnk"});
  m_journal.Add("Z:\\Daily\\\xC3\xA4.lnk");
  EXPECT_THAT(m_journal.Read("7-1"), ElementsAre("Z:\\Daily\\a b.lnk", "Z:\\Daily\\\xC3\xA4.lnk"));
}

TEST_F(FavoritesJournalTest, ItSaysNothingOfAnotherVersionOfTheDataFile) {
  m_journal.Begin("7-1", {"Z:\\a.lnk"});
  EXPECT_THAT(m_journal.Read("7-12"), IsEmpty());
  EXPECT_THAT(m_journal.Read("7-"), IsEmpty());
  EXPECT_THAT(m_journal.Read("none"), IsEmpty());
}

TEST_F(FavoritesJournalTest, AShortcutNamedTwiceIsThereOnce) {
  m_journal.Begin("7-1", {"Z:\\a.lnk"});
  m_journal.Add("Z:\\a.lnk");
  EXPECT_THAT(m_journal.Read("7-1"), ElementsAre("Z:\\a.lnk"));
}

TEST_F(FavoritesJournalTest, ItTellsOfEachVersionWhatStandsBelowItsTitles) {
  m_journal.Begin("7-1", {"Z:\\a.lnk", "Z:\\b.lnk"});
  m_journal.Begin("8-2", {"Z:\\b.lnk"});
  m_journal.Add("Z:\\c.lnk");
  EXPECT_THAT(m_journal.Read("7-1"), ElementsAre("Z:\\a.lnk", "Z:\\b.lnk"));
  EXPECT_THAT(m_journal.Read("8-2"), ElementsAre("Z:\\b.lnk", "Z:\\c.lnk"));
  m_journal.Begin("7-1", {"Z:\\d.lnk"});
  EXPECT_THAT(m_journal.Read("7-1"), ElementsAre("Z:\\a.lnk", "Z:\\b.lnk", "Z:\\d.lnk"));
}

TEST_F(FavoritesJournalTest, ALineThatWasCutShortDoesNotSwallowTheNextTitle) {
  m_journal.Begin("7-1", {"Z:\\a.lnk"});
  m_folder.Write("Favorites.pending", ReadFile(m_folder / "Favorites.pending") + "8 Z:\\b");
  m_journal.Begin("8-2", {"Z:\\c.lnk"});
  EXPECT_THAT(m_journal.Read("7-1"), ElementsAre("Z:\\a.lnk"));
  EXPECT_THAT(m_journal.Read("8-2"), ElementsAre("Z:\\c.lnk"));
}

TEST_F(FavoritesJournalTest, OneThatCannotBeReadIsAnErrorAndNotEmpty) {
  m_journal.Begin("7-1", {"Z:\\a.lnk"});
  m_files.beforeRead = [](const std::string& path) { throw Error(kDeviceIoError, "Input/output error", path); };
  EXPECT_THROW(m_journal.Read("7-1"), Error);
}

TEST_F(FavoritesJournalTest, CutAtAnyByteItGivesTheWholeLinesBeforeTheCut) {
  m_journal.Begin("7-1", {"Z:\\a.lnk"});
  const std::size_t first = ReadFile(m_folder / "Favorites.pending").size();
  m_journal.Add("Z:\\a.lnk.lnk");
  const std::string whole = ReadFile(m_folder / "Favorites.pending");
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    m_folder.Write("Favorites.pending", whole.substr(0, length));
    const std::size_t expected = length == whole.size() ? 2 : length >= first ? 1 : 0;
    EXPECT_EQ(m_journal.Read("7-1").size(), expected) << length;
  }
}

TEST_F(FavoritesJournalTest, ALineThatWasCutDoesNotSpoilTheNext) {
  m_folder.Write("Favorites.pending", "dayvane-pending 1 7-1\n20 Z:\\a.ln8 Z:\\b.lnk\n8 Z:\\c.lnk\nx\n-1 \n0 \n");
  EXPECT_THAT(m_journal.Read("7-1"), ElementsAre("Z:\\c.lnk"));
}

TEST_F(FavoritesJournalTest, WhenAllIsSavedNothingIsLeft) {
  m_journal.Begin("7-1", {"Z:\\a.lnk"});
  m_journal.End();
  EXPECT_THAT(m_journal.Read("7-1"), IsEmpty());
  EXPECT_THAT(m_files.List(m_folder.Path()), IsEmpty());
  m_journal.End();
}

TEST_F(FavoritesJournalTest, AnotherFileOfItsNameIsNone) {
  m_folder.Write("Favorites.pending", "8 Z:\\a.lnk\n8 Z:\\b.lnk\n");
  EXPECT_THAT(m_journal.Read("7-1"), IsEmpty());
}

TEST(DataIdentityTest, TellsOneTextFromAnother) {
  EXPECT_EQ(DataIdentity(std::nullopt), "none");
  EXPECT_EQ(DataIdentity("a"), "1-12638187200555641996") << "the published value of FNV-1a for this text";
  EXPECT_NE(DataIdentity("1,a"), DataIdentity("2,a"));
  EXPECT_NE(DataIdentity(""), DataIdentity(std::string(1, '\0')));
}

}  // namespace
}  // namespace dayvane::favorites
