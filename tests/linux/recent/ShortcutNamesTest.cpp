// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/Utf8.h"
#include "linux/recent/ShortcutNames.h"

namespace dayvane::recent {
namespace {

bool Nowhere(const std::string&) {
  return false;
}

/// Chooses a name and gives it to a document.
std::string Next(ShortcutNames& names, const std::string& documentName, const std::string& owner) {
  std::string name = names.Choose(documentName, Nowhere);
  names.Take(name, owner);
  return name;
}

TEST(ShortcutNames, AShortcutHasItsDocumentsFullName) {
  EXPECT_EQ(ShortcutName("Report.odt", 1), "Report.odt.lnk");
  EXPECT_EQ(ShortcutName("Report.odt", 2), "Report.odt (2).lnk");
}

TEST(ShortcutNames, AHiddenDocumentHasAVisibleShortcut) {
  EXPECT_EQ(ShortcutName(".bashrc", 1), "_.bashrc.lnk");
}

TEST(ShortcutNames, ALongNameIsCutToWhatTheFileSystemTakes) {
  EXPECT_EQ(ShortcutName(std::string(251, 'x'), 1), std::string(251, 'x') + ".lnk");
  EXPECT_EQ(ShortcutName(std::string(255, 'x'), 1), std::string(251, 'x') + ".lnk");
  EXPECT_EQ(ShortcutName(std::string(255, 'x'), 12), std::string(246, 'x') + " (12).lnk");
}

TEST(ShortcutNames, ACutNeverSplitsACharacter) {
  for (std::size_t lead = 0; lead < 4; ++lead) {
    std::string name(lead, 'x');
    while (name.size() < 252) name += "\xF0\x9F\x98\x80";
    const std::string shortcut = ShortcutName(name, 1);
    EXPECT_TRUE(utf8::IsValid(shortcut)) << lead;
    EXPECT_LE(shortcut.size(), 255U) << lead;
    EXPECT_GT(shortcut.size(), 251U) << lead;
  }
}

TEST(ShortcutNames, TheNextDocumentOfANameGetsTheNextNumber) {
  Forgotten forgotten;
  ShortcutNames names(forgotten);
  EXPECT_EQ(Next(names, "Report.odt", "/a/Report.odt"), "Report.odt.lnk");
  EXPECT_EQ(Next(names, "Report.odt", "/b/Report.odt"), "Report.odt (2).lnk");
  EXPECT_EQ(Next(names, "REPORT.ODT", "/c/REPORT.ODT"), "REPORT.ODT (3).lnk");
}

TEST(ShortcutNames, ANameThatADocumentHasByItselfIsNotGivenTwice) {
  Forgotten forgotten;
  ShortcutNames names(forgotten);
  Next(names, "a", "/1/a");
  Next(names, "a (2)", "/2/a (2)");
  EXPECT_EQ(Next(names, "a", "/3/a"), "a (3).lnk");
}

TEST(ShortcutNames, LongNamesThatAreCutAlikeStayDistinct) {
  Forgotten forgotten;
  ShortcutNames names(forgotten);
  const std::string first = Next(names, std::string(251, 'x') + "1", "/1");
  const std::string second = Next(names, std::string(251, 'x') + "2", "/2");
  EXPECT_NE(first, second);
}

TEST(ShortcutNames, AFileInTheFolderKeepsItsName) {
  Forgotten forgotten;
  ShortcutNames names(forgotten);
  const auto isThere = [](const std::string& name) { return name == "Report.odt.lnk"; };
  EXPECT_EQ(names.Choose("Report.odt", isThere), "Report.odt (2).lnk");
}

TEST(ShortcutNames, TheOwnerIsFoundWhateverTheCase) {
  Forgotten forgotten;
  ShortcutNames names(forgotten);
  names.Take("\xC3\x84rger.txt.lnk", "/home/x");
  ASSERT_NE(names.Owner("\xC3\xA4RGER.TXT.LNK"), nullptr);
  EXPECT_EQ(*names.Owner("\xC3\xA4RGER.TXT.LNK"), "/home/x");
  EXPECT_EQ(names.Owner("other.lnk"), nullptr);
}

TEST(ShortcutNames, AForgottenNameIsNeverGivenToAnotherDocument) {
  Forgotten forgotten;
  ShortcutNames names(forgotten);
  const std::string first = Next(names, "Report.odt", "/a/Report.odt");
  const std::string second = Next(names, "Report.odt", "/b/Report.odt");
  names.Forget(first, 10);
  names.Forget(second, 20);
  ShortcutNames later(forgotten);
  EXPECT_EQ(Next(later, "report.odt", "/c/report.odt"), "report.odt (3).lnk");
  EXPECT_EQ(Next(later, "report.odt", "/d/report.odt"), "report.odt (4).lnk");
  EXPECT_EQ(forgotten.latest, 20);
}

TEST(ShortcutNames, OtherNamesAreNotTouchedByForgetting) {
  Forgotten forgotten;
  ShortcutNames names(forgotten);
  names.Forget(Next(names, "Report.odt", "/a/Report.odt"), 10);
  EXPECT_EQ(Next(names, "Letter.odt", "/a/Letter.odt"), "Letter.odt.lnk");
}

TEST(ShortcutNames, AHugeNumberInADocumentsOwnNameCostsNothing) {
  Forgotten forgotten;
  ShortcutNames names(forgotten);
  names.Forget(Next(names, "a (2147483647)", "/a"), 10);
  EXPECT_EQ(forgotten.highestNumber, 1);
  EXPECT_EQ(Next(names, "a (2147483647)", "/b"), "a (2147483647) (2).lnk");
}

TEST(ShortcutNames, TenThousandDocumentsOfOneNameAreNamedAtOnce) {
  Forgotten forgotten;
  ShortcutNames names(forgotten);
  std::string last;
  for (int i = 0; i < 10'000; ++i) last = Next(names, "index.html", std::to_string(i));
  EXPECT_EQ(last, "index.html (10000).lnk");
}

}  // namespace
}  // namespace dayvane::recent
