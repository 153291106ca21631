// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "linux/recent/ExclusionRules.h"

namespace dayvane::recent {
namespace {

bool CoversPath(const std::string& rules, const std::string& path) {
  return ExclusionRules(rules, {"/home/ana"}).Cover({path, 0, "", ""});
}

bool CoversProgram(const std::string& rules, const std::string& program) {
  return ExclusionRules(rules, {"/home/ana"}).Cover({"/a.txt", 0, program, ""});
}

bool CoversType(const std::string& rules, const std::string& path, const std::string& type) {
  return ExclusionRules(rules, {"/home/ana"}).Cover({path, 0, "", type});
}

/// The numbers of the lines that say nothing.
std::vector<std::size_t> BadLinesOf(const std::string& rules) {
  std::vector<std::size_t> numbers;
  const ExclusionRules parsed(rules, {"/home/ana"});
  for (const auto& bad : parsed.BadLines()) numbers.push_back(bad.number);
  return numbers;
}

TEST(ExclusionRules, WithoutRulesNothingIsCovered) {
  EXPECT_FALSE(ExclusionRules().Cover({"/a.txt", 0, "kate", "text/plain"}));
  for (const char* rules : {"", "\n\n", "# /a.txt\n", "  \t \r\n   # /a.txt"})
    EXPECT_FALSE(CoversPath(rules, "/a.txt"));
}

TEST(ExclusionRules, AFolderMeansEverythingBelowIt) {
  for (const char* rules :
       {"~/Private", "~/Private/", "/home/ana/Private", "~/Private//", "  ~/Private  \r\n", "\n#x\n~/Private"}) {
    EXPECT_TRUE(CoversPath(rules, "/home/ana/Private/a.txt")) << rules;
    EXPECT_TRUE(CoversPath(rules, "/home/ana/Private/deep/.down/a.txt")) << rules;
    EXPECT_TRUE(CoversPath(rules, "/home/ana/Private")) << rules;
    EXPECT_FALSE(CoversPath(rules, "/home/ana/Private.txt")) << rules;
    EXPECT_FALSE(CoversPath(rules, "/home/ana/a.txt")) << rules;
    EXPECT_FALSE(CoversPath(rules, "/mnt/home/ana/Private/a.txt")) << rules;
  }
}

TEST(ExclusionRules, APatternOfANameFitsFilesAndFoldersAnywhere) {
  EXPECT_TRUE(CoversPath("*.iso", "/media/disk/debian.iso"));
  EXPECT_TRUE(CoversPath("*.iso", "/home/ana/.iso"));
  EXPECT_FALSE(CoversPath("*.iso", "/home/ana/iso"));
  EXPECT_TRUE(CoversPath("node_modules", "/home/ana/x/node_modules/y/readme.md"));
  EXPECT_FALSE(CoversPath("node_modules", "/home/ana/node_modules.txt"));
}

TEST(ExclusionRules, AStarCrossesFoldersAndLeadingDots) {
  EXPECT_TRUE(CoversPath("~/Letters/*/Drafts", "/home/ana/Letters/2026/.may/Drafts/a.odt"));
  EXPECT_TRUE(CoversPath("*/Drafts", "/srv/Drafts/a.odt"));
  EXPECT_TRUE(CoversPath("/home/*/secret?.[ot]*", "/home/ben/secret1.odt"));
  EXPECT_FALSE(CoversPath("/home/*/secret?.[ot]*", "/home/ben/secret.odt"));
}

TEST(ExclusionRules, TheHomeFolderIsNoPattern) {
  const ExclusionRules rules("~/x", {"/home/a[b]*", "/real/home"});
  EXPECT_TRUE(rules.Cover({"/home/a[b]*/x/y", 0, "", ""}));
  EXPECT_TRUE(rules.Cover({"/real/home/x/y", 0, "", ""}));
  EXPECT_FALSE(rules.Cover({"/home/abc/x/y", 0, "", ""}));
  EXPECT_FALSE(rules.Cover({"/home/a[b]c/x/y", 0, "", ""}));
}

TEST(ExclusionRules, ATildeAloneIsTheWholeHomeFolder) {
  EXPECT_TRUE(CoversPath("~", "/home/ana/a.txt"));
  EXPECT_TRUE(CoversPath("~/", "/home/ana/a.txt"));
  EXPECT_FALSE(CoversPath("~", "/home/ben/a.txt"));
}

TEST(ExclusionRules, AProgramIsKnownByItsNameOrTheLastPartOfItsId) {
  for (const char* program : {"Firefox", "firefox", "org.mozilla.firefox", "org.mozilla.Firefox"})
    EXPECT_TRUE(CoversProgram("program:firefox", program)) << program;
  EXPECT_TRUE(CoversProgram("program: org.mozilla.FIREFOX", "org.mozilla.firefox"));
  EXPECT_TRUE(CoversProgram("program:LibreOffice*", "LibreOffice 7.4"));
  EXPECT_FALSE(CoversProgram("program:fire", "Firefox"));
  EXPECT_FALSE(CoversProgram("program:*", "")) << "a program that nobody named";
}

TEST(ExclusionRules, ATypeIsTheDocumentsOwn) {
  EXPECT_TRUE(CoversType("type:image/*", "/a", "image/png"));
  EXPECT_TRUE(CoversType("type:Image/PNG", "/a", "IMAGE/png"));
  EXPECT_FALSE(CoversType("type:image/*", "/a.png", "text/plain"));
}

TEST(ExclusionRules, ATypeThatIsNotToldIsThatOfTheName) {
  EXPECT_TRUE(CoversType("type:*/x-letter", "/home/ana/a.letter", ""));
  EXPECT_TRUE(CoversType("type:*/x-letter", "/home/ana/a.letter", "application/octet-stream"));
  EXPECT_FALSE(CoversType("type:*/x-letter", "/home/ana.letter/a.sketch", ""));
}

TEST(ExclusionRules, LinesThatSayNothingAreTold) {
  EXPECT_THAT(BadLinesOf("/\n~/x\nPrivate/letters\ntype:\nprogram: \n~ana/x\n*.iso\n" + std::string(5000, 'x')),
              ::testing::ElementsAre(1, 3, 4, 5, 6, 8));
  EXPECT_THAT(BadLinesOf(std::string("a\0b", 3)), ::testing::ElementsAre(1));
  const std::string longest = "/" + std::string(4095, 'x');  // as long as a path may be
  EXPECT_THAT(BadLinesOf(longest + "\n" + longest + "x"), ::testing::ElementsAre(2));
}

TEST(ExclusionRules, ABadLineCostsOnlyItself) {
  EXPECT_TRUE(CoversPath("a/b\n*.iso\n", "/x.iso"));
}

TEST(ExclusionRules, AByteOrderMarkAndALineWithoutAnEndAreFine) {
  EXPECT_TRUE(CoversPath("\xEF\xBB\xBF*.iso", "/x.iso"));
}

TEST(ExclusionRules, NamesThatAreNotUtf8AreBytes) {
  EXPECT_TRUE(CoversPath("/home/\xff", "/home/\xff/a"));
  EXPECT_TRUE(CoversPath("*.iso", "/home/\xff.iso"));
}

TEST(ExclusionRules, ManyStarsTakeNoVeryLongTime) {
  std::string pattern = "/";
  for (int i = 0; i < 30; ++i) pattern += "*a";
  EXPECT_FALSE(CoversPath(pattern + "b", "/" + std::string(4000, 'a')));
}

}  // namespace
}  // namespace dayvane::recent
