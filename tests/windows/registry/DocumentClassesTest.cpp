// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "capture/DocumentClass.h"
#include "tests/windows/RegistryTree.h"
#include "windows/WindowsRegistry.h"
#include "windows/registry/DocumentClasses.h"

namespace dayvane::registry {
namespace {

using testing::ClassTree;

constexpr const char* kExtension = ".dayvane-letter";
constexpr const char* kChoice =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.dayvane-letter\\UserChoice";

/// What is registered before the program starts.
struct RegisteredClasses {
  RegisteredClasses() {
    extension.SetText("", "", "Dayvane.Letter");
    letter.SetText("", "", "Letter");
    user.AddKey("Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts");
  }

  testing::RegistryTree user;
  ClassTree extension{kExtension};
  ClassTree letter{"Dayvane.Letter"};
};

class DocumentClassesTest : public ::testing::Test {
 protected:
  std::optional<std::string> TextOf(std::string_view path) {
    m_now += std::chrono::milliseconds(1);
    return m_classes.Find(path)->text;
  }

  std::chrono::milliseconds m_now{1};
  RegisteredClasses m_registered;
  const testing::RegistryTree& m_user = m_registered.user;
  const ClassTree& m_extension = m_registered.extension;
  const ClassTree& m_letter = m_registered.letter;
  DocumentClasses m_classes{m_user.Path(), [this] { return m_now; }};
};

TEST_F(DocumentClassesTest, AnEndingHasTheClassThatIsRegisteredForIt) {
  EXPECT_EQ(TextOf(kExtension), "Dayvane.Letter");
  EXPECT_EQ(TextOf("Dayvane.Letter"), "Letter");
}

TEST_F(DocumentClassesTest, AnUnknownEndingHasNoClass) {
  for (const char* path : {".dayvane-nobody-knows", ".", "", "\\", ".dayvane-letter\\DefaultIcon", "dayvane-letter"})
    EXPECT_EQ(TextOf(path), std::nullopt) << path;
  EXPECT_EQ(TextOf(std::string_view(".dayvane-letter\0x", 17)), std::nullopt);
  EXPECT_EQ(TextOf("." + std::string(40000, 'x')), std::nullopt);
}

TEST_F(DocumentClassesTest, AClassThatIsNoTextIsNone) {
  m_extension.SetBytes("", "", REG_BINARY, "letter");
  EXPECT_EQ(TextOf(kExtension), std::nullopt);
}

TEST_F(DocumentClassesTest, VariablesOfTheEnvironmentAreExpandedWhereTheyMayStand) {
  m_letter.SetText("shell\\open\\command", "", "%SystemRoot%\\letters.exe \"%1\"", REG_EXPAND_SZ);
  m_letter.SetText("DefaultIcon", "", "%SystemRoot%\\letters.dll,3");
  wchar_t windows[MAX_PATH];
  GetWindowsDirectoryW(windows, MAX_PATH);
  const std::string folder(windows, windows + wcslen(windows));
  EXPECT_THAT(TextOf("Dayvane.Letter\\shell\\open\\command").value(),
              ::testing::StrCaseEq(folder + "\\letters.exe \"%1\""));
  EXPECT_EQ(TextOf("Dayvane.Letter\\DefaultIcon"), "%SystemRoot%\\letters.dll,3");
}

TEST_F(DocumentClassesTest, TheUsersOwnChoiceGoesBeforeWhatIsRegistered) {
  const ClassTree chosen("Dayvane.Chosen");
  chosen.SetText("", "", "Letter of mine");
  m_user.SetText(kChoice, "ProgId", "Dayvane.Chosen");
  EXPECT_EQ(TextOf(kExtension), "Dayvane.Chosen");
}

TEST_F(DocumentClassesTest, AChoiceOfWhatIsGoneOrHasNoDescriptionDoesNotCount) {
  const ClassTree chosen("Dayvane.Chosen");
  for (const char* choice : {"Dayvane.Gone", "Dayvane.Chosen", ""}) {
    m_user.SetText(kChoice, "ProgId", choice);
    EXPECT_EQ(TextOf(kExtension), "Dayvane.Letter") << choice;
  }
  m_user.SetBytes(kChoice, "ProgId", REG_DWORD, "1234");
  EXPECT_EQ(TextOf(kExtension), "Dayvane.Letter");
}

TEST_F(DocumentClassesTest, AnswersAreKeptUntilTheyAreAMinuteOld) {
  const auto first = m_classes.Find(kExtension);
  m_now += DocumentClasses::kLongestKept - std::chrono::milliseconds(1);
  EXPECT_EQ(m_classes.Find(kExtension), first);
  m_now += std::chrono::milliseconds(1);
  EXPECT_NE(m_classes.Find(kExtension), first);
}

TEST_F(DocumentClassesTest, ANewClassForAnEndingIsNoticed) {
  for (const char* name : {"Dayvane.First", "Dayvane.Second"}) {
    ASSERT_NE(TextOf(kExtension), name);
    m_extension.SetText("", "", name);
    EXPECT_EQ(TextOf(kExtension), name);
  }
}

TEST_F(DocumentClassesTest, ANewChoiceIsNoticed) {
  ASSERT_EQ(TextOf(kExtension), "Dayvane.Letter");
  const ClassTree chosen("Dayvane.Chosen");
  chosen.SetText("", "", "Letter of mine");
  ASSERT_EQ(TextOf(kExtension), "Dayvane.Letter");
  m_user.SetText(kChoice, "ProgId", "Dayvane.Chosen");
  EXPECT_EQ(TextOf(kExtension), "Dayvane.Chosen");
}

TEST_F(DocumentClassesTest, CountlessEndingsAreNotAllRemembered) {
  const std::weak_ptr<const ClassKeyAnswer> first = m_classes.Find(".dayvane-first");
  for (int i = 0; i < 5000; ++i) m_classes.Find(".dayvane-" + std::to_string(i));
  EXPECT_TRUE(first.expired());
}

TEST_F(DocumentClassesTest, TheProgramReadsFromThemWhatADocumentIsAndWhatOpensIt) {
  m_letter.SetText("DefaultIcon", "", "C:\\letters.dll,3");
  m_letter.SetText("shell\\open\\command", "", "\"C:\\Letters\\letters.exe\" \"%1\"");
  WindowsRegistry windowsRegistry([](const std::string&) {}, m_user.Path());
  DocumentClassReader reader(windowsRegistry);
  const DocumentClass& found = reader.ClassOf("To Ana.Dayvane-Letter");
  EXPECT_EQ(found.description, "Letter");
  EXPECT_EQ(found.icon.value().index, 3);
  EXPECT_EQ(found.executable, "C:\\Letters\\letters.exe");
  EXPECT_EQ(found.executableFileName, "Letters.exe");
}

}  // namespace
}  // namespace dayvane::registry
