// SPDX-License-Identifier: MIT
#include <fstream>
#include <gtest/gtest.h>

#include "linux/files/NativePath.h"
#include "linux/registry/DocumentClasses.h"
#include "tests/linux/MainLoop.h"
#include "tests/linux/PrivateDesktop.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::registry {
namespace {

namespace desktop = dayvane::testing::desktop;
using dayvane::testing::MainLoopRunsUntil;

std::string CommandFor(const std::string& nativeProgram) {
  return "\"" + files::FromNative(nativeProgram).value() + "\" \"%1\"";
}

/// A default application chosen by the user, as long as the object lives.
class ChosenApplication {
 public:
  explicit ChosenApplication(const std::string& line) : m_path(desktop::DefaultsFile()) {
    std::ofstream(m_path) << "[Default Applications]\n" << line << "\n";
  }
  ChosenApplication(const ChosenApplication&) = delete;
  ChosenApplication& operator=(const ChosenApplication&) = delete;
  ~ChosenApplication() { std::remove(m_path.c_str()); }

 private:
  std::string m_path;
};

TEST(DocumentClasses, AnEndingHasTheClassOfItsContentType) {
  EXPECT_EQ(DocumentClasses().Find(".letter")->text, "application/x-letter");
}

TEST(DocumentClasses, AnEndingInCapitalsIsTheSameEnding) {
  EXPECT_EQ(DocumentClasses().Find(".LETTER")->text, "application/x-letter");
}

TEST(DocumentClasses, AnEndingThatDiffersInCapitalsIsTakenForTheOneInSmallLetters) {
  EXPECT_EQ(DocumentClasses().Find(".SMALL")->text, "application/x-small");
}

TEST(DocumentClasses, OfTwoTypesWithOneEndingTheFirstIsTaken) {
  EXPECT_TRUE(DocumentClasses().Find(".both")->text.has_value());
}

TEST(DocumentClasses, AnUnknownEndingHasNoClass) {
  DocumentClasses classes;
  for (const char* path : {".nobody-knows", ".", "", ".a/b.letter", ".letter\\DefaultIcon", "letter"})
    EXPECT_EQ(classes.Find(path)->text, std::nullopt) << path;
}

TEST(DocumentClasses, AClassIsDescribedInWords) {
  EXPECT_EQ(DocumentClasses().Find("application/x-letter")->text, "Letter");
}

TEST(DocumentClasses, AClassHasAnIconOfTheTheme) {
  EXPECT_EQ(DocumentClasses().Find("application/x-letter\\DefaultIcon")->text, "application-x-letter,0");
}

TEST(DocumentClasses, AClassIsOpenedByItsDefaultApplication) {
  EXPECT_EQ(DocumentClasses().Find("application/x-letter\\shell\\open\\command")->text,
            CommandFor(desktop::Program("letter-writer")));
}

constexpr const char* kCommandForFolders = "inode/directory\\shell\\open\\command";

DocumentClasses::LastProgram LastlyOpenedWith(const std::string& program) {
  return
      [program](const std::string& type) { return type == "inode/directory" ? std::optional(program) : std::nullopt; };
}

TEST(DocumentClasses, WithoutAChoiceAClassIsOpenedByTheProgramThatLastOpenedSuchADocument) {
  EXPECT_EQ(DocumentClasses().Find(kCommandForFolders)->text, CommandFor(desktop::Program("letter-writer")));
  for (const char* name : {"Files", "files", "/usr/bin/files", "FILES 7.4"}) {
    DocumentClasses classes;
    classes.AskForPrograms(LastlyOpenedWith(name));
    EXPECT_EQ(classes.Find(kCommandForFolders)->text, CommandFor(desktop::Program("files"))) << name;
  }
}

TEST(DocumentClasses, AProgramThatDoesNotClaimTheClassIsNotItsProgram) {
  DocumentClasses classes;
  classes.AskForPrograms(LastlyOpenedWith("Paint"));
  EXPECT_EQ(classes.Find(kCommandForFolders)->text, CommandFor(desktop::Program("letter-writer")));
}

TEST(DocumentClasses, TheUsersChoiceStaysWhateverOpenedADocumentLast) {
  const ChosenApplication chosen("inode/directory=a-viewer.desktop");
  DocumentClasses classes;
  classes.AskForPrograms(LastlyOpenedWith("Files"));
  EXPECT_EQ(classes.Find(kCommandForFolders)->text, CommandFor(desktop::Program("letter-writer")));
}

TEST(DocumentClasses, NamesOfSubKeysIgnoreTheirCase) {
  DocumentClasses classes;
  EXPECT_EQ(classes.Find("application/x-letter\\DEFAULTICON")->text, "application-x-letter,0");
  EXPECT_TRUE(classes.Find("application/x-letter\\Shell\\Open\\Command")->text.has_value());
}

TEST(DocumentClasses, AClassWithoutAnApplicationHasNoCommand) {
  DocumentClasses classes;
  EXPECT_EQ(classes.Find(".orphan")->text, "application/x-orphan");
  EXPECT_EQ(classes.Find("application/x-orphan\\shell\\open\\command")->text, std::nullopt);
}

TEST(DocumentClasses, AnswersAreKeptUntilTheyAreAMinuteOld) {
  auto now = std::chrono::steady_clock::time_point{};
  DocumentClasses classes([&] { return now; });
  const auto first = classes.Find(".letter");
  now += DocumentClasses::kLongestKept - std::chrono::seconds(1);
  EXPECT_EQ(classes.Find(".letter"), first);
  now += std::chrono::seconds(1);
  EXPECT_NE(classes.Find(".letter"), first);
}

TEST(DocumentClasses, ANewDefaultApplicationIsNoticed) {
  DocumentClasses classes;
  const std::string path = "application/x-chosen\\shell\\open\\command";
  ASSERT_EQ(classes.Find(path)->text, CommandFor(desktop::Program("letter-writer")));
  const ChosenApplication chosen("application/x-chosen=sketches.desktop");
  EXPECT_TRUE(MainLoopRunsUntil([&] { return classes.Find(path)->text == CommandFor(desktop::Program("sketcher")); }));
}

TEST(DocumentClasses, AnAnswerOutlivesTheApplicationsChange) {
  auto now = std::chrono::steady_clock::time_point{};
  DocumentClasses classes([&] { return now; });
  const auto answer = classes.Find(".letter");
  now += DocumentClasses::kLongestKept;
  classes.Find(".sketch");
  EXPECT_EQ(answer->path, ".letter");
  EXPECT_EQ(answer->text, "application/x-letter");
}

TEST(DocumentClasses, CountlessEndingsAreNotAllRemembered) {
  DocumentClasses classes;
  const std::weak_ptr<const ClassKeyAnswer> first = classes.Find(".first");
  for (int i = 0; i < 5000; ++i) classes.Find("." + std::to_string(i));
  EXPECT_TRUE(first.expired());
}

}  // namespace
}  // namespace dayvane::registry
