// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "base/Error.h"
#include "tests/windows/RegistryTree.h"
#include "windows/WindowsRegistry.h"

namespace dayvane {
namespace {

using platform::kHkeyCurrentUser;
using platform::kKeyExists;
using platform::kRegistryString;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using namespace std::string_view_literals;

constexpr const char* kOptionsPath = "\\HKEY_CURRENT_USER\\Software\\Korvath\\Dayvane\\Options";
constexpr const char* kOptions = "Software\\Korvath\\Dayvane\\Options";

class WindowsRegistryTest : public ::testing::Test {
 protected:
  WindowsRegistryTest() { m_tree.AddKey("Software"); }

  /// Makes the key of the options as the program does: level by level, whatever is there already.
  std::unique_ptr<platform::RegistryKey> MakeOptions() {
    auto key = m_registry.KeyFromRoot(kHkeyCurrentUser)->OpenSubKey("Software");
    for (const char* name : {"Korvath", "Dayvane", "Options"}) {
      key->AddSubKey(name);
      key = key->OpenSubKey(name);
    }
    return key;
  }
  std::string OptionOf(const std::string& name) { return m_registry.KeyFromPath(kOptionsPath)->Value(name); }

  testing::RegistryTree m_tree;
  std::vector<std::string> m_events;
  WindowsRegistry m_registry{[this](const std::string& event) { m_events.push_back(event); }, m_tree.Path()};
};

template <class Action>
int NumberOfRegistryError(Action action) {
  try {
    action();
  } catch (const Error& error) {
    return error.Number();
  }
  return 0;
}

TEST_F(WindowsRegistryTest, AFirstRunFindsSoftwareAndNothingElse) {
  EXPECT_NO_THROW(m_registry.KeyFromRoot(kHkeyCurrentUser)->OpenSubKey("Software"));
  EXPECT_EQ(NumberOfRegistryError([&] { m_registry.KeyFromPath(kOptionsPath); }), kKeyMissing);
}

TEST_F(WindowsRegistryTest, TheUsersOwnRegistryIsReadWhereNoOtherIsGiven) {
  WindowsRegistry registry([](const std::string&) {});
  EXPECT_NO_THROW(registry.KeyFromPath("\\HKEY_CURRENT_USER\\Software"));
  EXPECT_NO_THROW(registry.KeyFromRoot(kHkeyCurrentUser)->OpenSubKey(m_tree.Path()));
}

TEST_F(WindowsRegistryTest, AKeyJustAddedCanBeOpenedWhileItIsEmpty) {
  MakeOptions();
  EXPECT_NO_THROW(m_registry.KeyFromPath(kOptionsPath));
}

TEST_F(WindowsRegistryTest, AddingAKeyThatIsThereSaysSo) {
  MakeOptions();
  auto software = m_registry.KeyFromRoot(kHkeyCurrentUser)->OpenSubKey("Software");
  EXPECT_EQ(NumberOfRegistryError([&] { software->AddSubKey("Korvath"); }), kKeyExists);
  EXPECT_EQ(NumberOfRegistryError([&] { software->AddSubKey("KORVATH"); }), kKeyExists);
}

TEST_F(WindowsRegistryTest, AKeyNameIsOneLevel) {
  auto software = m_registry.KeyFromRoot(kHkeyCurrentUser)->OpenSubKey("Software");
  for (const std::string& name : {std::string(), std::string("a\\b"), std::string("a\0b", 3), std::string(300, 'x')})
    EXPECT_EQ(NumberOfRegistryError([&] { software->AddSubKey(name); }), kInvalidProcedureCall) << name;
}

TEST_F(WindowsRegistryTest, ValuesAreStoredAsPlainStrings) {
  MakeOptions()->AddValue("Favorites Threshold", "3", kRegistryString);
  EXPECT_EQ(OptionOf("Favorites Threshold"), "3");
  EXPECT_EQ(m_tree.TypeOf(kOptions, "Favorites Threshold"), DWORD{REG_SZ});
}

TEST_F(WindowsRegistryTest, TextsOfAnyScriptAndLengthComeBackAsTheyWere) {
  auto key = MakeOptions();
  for (const std::string& text : {std::string(), std::string("\u0391\u03bb\u03c6\u03b1 \u6587\u66f8 \U0001F4C4"),
                                  std::string(127, 'x'), std::string(128, 'x'), std::string(30000, 'x')}) {
    key->AddValue("\u6587\u66f8", text, kRegistryString);
    EXPECT_EQ(OptionOf("\u6587\u66f8"), text);
  }
}

TEST_F(WindowsRegistryTest, AValueThatExistsTakesANewText) {
  auto key = MakeOptions();
  key->AddValue("Purge Age", "30", kRegistryString);
  key->SetValue("Purge Age", "31");
  EXPECT_EQ(OptionOf("PURGE AGE"), "31");
}

TEST_F(WindowsRegistryTest, AMissingValueIsNeitherReadNorSet) {
  auto key = MakeOptions();
  EXPECT_EQ(NumberOfRegistryError([&] { key->Value("Purge Age"); }), kKeyMissing);
  EXPECT_EQ(NumberOfRegistryError([&] { key->SetValue("Purge Age", "30"); }), kKeyMissing);
  EXPECT_EQ(m_tree.TypeOf(kOptions, "Purge Age"), DWORD{REG_NONE});
}

TEST_F(WindowsRegistryTest, ANameThatTheSystemWouldCutIsNoName) {
  auto key = MakeOptions();
  key->AddValue("Purge", "30", kRegistryString);
  EXPECT_EQ(NumberOfRegistryError([&] { key->Value(std::string("Purge\0Age", 9)); }), kKeyMissing);
  EXPECT_EQ(NumberOfRegistryError([&] { key->OpenSubKey(std::string("\0", 1)); }), kKeyMissing);
}

TEST_F(WindowsRegistryTest, AValueThatIsNoTextCountsAsMissing) {
  auto key = MakeOptions();
  m_tree.SetBytes(kOptions, "number", REG_DWORD, "\1\0\0\0"sv);
  m_tree.SetBytes(kOptions, "bytes", REG_BINARY, "3\0\0\0"sv);
  m_tree.SetBytes(kOptions, "list", REG_MULTI_SZ, "3\0\0\0\0\0"sv);
  m_tree.SetBytes(kOptions, "odd", REG_SZ, "3\0\0"sv);
  m_tree.SetBytes(kOptions, "half a pair", REG_SZ, "\0\xD8\0\0"sv);
  m_tree.SetBytes(kOptions, "huge", REG_SZ, std::string(1 << 20, '3'));
  for (const char* name : {"number", "bytes", "list", "odd", "half a pair", "huge"}) {
    EXPECT_EQ(NumberOfRegistryError([&] { key->Value(name); }), kKeyMissing) << name;
    EXPECT_EQ(NumberOfRegistryError([&] { key->SetValue(name, "4"); }), kKeyMissing) << name;
    key->AddValue(name, "4", kRegistryString);
    EXPECT_EQ(key->Value(name), "4") << name;
  }
}

TEST_F(WindowsRegistryTest, ATextWithoutItsEndIsReadToTheEndOfItsBytesAndOneOfMoreTextsToTheFirst) {
  auto key = MakeOptions();
  m_tree.SetBytes(kOptions, "endless", REG_SZ,
                  "3\0"
                  "0\0"sv);
  m_tree.SetBytes(kOptions, "empty", REG_SZ, "");
  m_tree.SetBytes(kOptions, "two", REG_SZ,
                  "3\0\0\0"
                  "0\0\0\0"sv);
  EXPECT_EQ(key->Value("endless"), "30");
  EXPECT_EQ(key->Value("empty"), "");
  EXPECT_EQ(key->Value("two"), "3");
}

TEST_F(WindowsRegistryTest, AKeyThatWasDeletedAndMadeAgainIsTheNewOne) {
  auto key = MakeOptions();
  m_tree.DeleteKey(kOptions);
  EXPECT_EQ(NumberOfRegistryError([&] { key->Value("Purge Age"); }), kKeyMissing);
  EXPECT_EQ(NumberOfRegistryError([&] { key->AddValue("Purge Age", "30", kRegistryString); }), kKeyMissing);
  m_tree.SetText(kOptions, "Purge Age", "31");
  EXPECT_EQ(key->Value("Purge Age"), "31");
}

TEST_F(WindowsRegistryTest, DefaultsThatCannotBeStoredHoldForThisRunAndAreReportedOnce) {
  auto key = MakeOptions();
  // What the system refuses for its length stands for what it refuses for want of rights.
  const std::string tooLong(20000, 'x');
  key->AddValue(tooLong, "3", kRegistryString);
  key->AddValue(tooLong + "y", "4", kRegistryString);
  EXPECT_EQ(OptionOf(tooLong), "3");
  EXPECT_THAT(m_events, SizeIs(1));
  EXPECT_NE(NumberOfRegistryError([&] { key->SetValue(tooLong, "5"); }), 0);
  EXPECT_EQ(OptionOf(tooLong), "3");
}

TEST_F(WindowsRegistryTest, PathsAreTheSameWhateverTheirCase) {
  MakeOptions();
  EXPECT_NO_THROW(m_registry.KeyFromPath("\\hkey_current_user\\SOFTWARE\\korvath\\DAYVANE\\options\\"));
}

TEST_F(WindowsRegistryTest, OtherRootsDoNotExist) {
  for (const char* path : {"", "\\", "\\HKEY_LOCAL_MACHINE\\Software", "\\HKEY_CURRENT_USERS\\Software", "Software"})
    EXPECT_EQ(NumberOfRegistryError([&] { m_registry.KeyFromPath(path); }), kKeyMissing) << path;
  EXPECT_EQ(NumberOfRegistryError([&] { m_registry.KeyFromRoot(0x80000002U); }), kKeyMissing);
}

TEST_F(WindowsRegistryTest, ADocumentClassIsTheDefaultValueOfItsKey) {
  const testing::ClassTree extension(".dayvane-letter");
  const testing::ClassTree letter("Dayvane.Letter");
  extension.SetText("", "", "Dayvane.Letter");
  letter.SetText("", "", "Letter \u0391");
  letter.SetText("DefaultIcon", "", "C:\\letters.dll,3");
  EXPECT_EQ(m_registry.KeyFromPath("\\HKEY_CLASSES_ROOT\\.DAYVANE-LETTER")->Value(""), "Dayvane.Letter");
  auto type = m_registry.KeyFromPath("\\HKEY_CLASSES_ROOT\\Dayvane.Letter");
  EXPECT_EQ(type->Value(""), "Letter \u0391");
  EXPECT_EQ(type->OpenSubKey("DefaultIcon")->Value(""), "C:\\letters.dll,3");
  EXPECT_EQ(NumberOfRegistryError([&] { type->Value("FriendlyTypeName"); }), kKeyMissing);
}

TEST_F(WindowsRegistryTest, AnUnknownDocumentClassIsAMissingKey) {
  for (const char* path : {".dayvane-nobody-knows", "Dayvane.Nobody", "\\", ".dayvane\\a\\b"})
    EXPECT_EQ(
        NumberOfRegistryError([&] { m_registry.KeyFromPath(std::string("\\HKEY_CLASSES_ROOT\\") + path)->Value(""); }),
        kKeyMissing)
        << path;
}

TEST_F(WindowsRegistryTest, DocumentClassesAreReadOnly) {
  const testing::ClassTree letter("Dayvane.Letter");
  letter.SetText("", "", "Letter");
  auto key = m_registry.KeyFromPath("\\HKEY_CLASSES_ROOT\\Dayvane.Letter");
  EXPECT_EQ(NumberOfRegistryError([&] { key->SetValue("", "text"); }), kPermissionDenied);
  EXPECT_EQ(NumberOfRegistryError([&] { key->AddValue("new", "text", kRegistryString); }), kPermissionDenied);
  EXPECT_EQ(NumberOfRegistryError([&] { key->AddSubKey("shell"); }), kPermissionDenied);
}

}  // namespace
}  // namespace dayvane
