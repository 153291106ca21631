// SPDX-License-Identifier: MIT

// A settings file that is damaged, by accident or on purpose. These tests find more under the sanitizers.

#include <gtest/gtest.h>
#include <random>

#include "base/Error.h"
#include "linux/LinuxRegistry.h"
#include "linux/registry/SettingsFile.h"
#include "settings/COptions.h"
#include "tests/linux/disk/BrokenDisk.h"
#include "tests/support/TestDesktop.h"

namespace dayvane::registry {
namespace {

using testing::ReadFile;
using testing::TestDesktop;

constexpr const char* kOptions = "Software\\Korvath\\Dayvane\\Options";
constexpr const char* kWindow = "Software\\Korvath\\Dayvane\\Window";

const SettingsKeys kWholeSettings{
    {kOptions, {{"Favorites Threshold", "12"}, {"Purge Age", "345"}, {"Timer Interval", "10"}}},
    {kWindow, {{"Left", "-120"}, {"Visible", "True"}}}};

/// The program's options, read from a settings file with this text.
class OptionsOver {
 public:
  explicit OptionsOver(const std::string& text) {
    m_desktop.folder.Write("dayvane.ini", text);
    m_options.ReadValues();
  }

  const COptions& Options() const { return m_options; }
  std::string FileText() const { return ReadFile(m_file); }

 private:
  TestDesktop m_desktop;
  std::string m_file = m_desktop.folder / "dayvane.ini";
  LinuxRegistry m_registry{m_file, [](const std::string&) {}};
  platform::Desktop m_parts{m_desktop.files,     m_desktop.shell, m_desktop.icons, m_registry,
                            m_desktop.windowing, m_desktop.help,  m_desktop.clock, m_desktop.dates};
  Application m_application{m_parts, m_desktop.Folder()};
  COptions m_options{m_application};
};

void ExpectPartOf(const SettingsKeys& part, const SettingsKeys& whole, std::size_t length) {
  for (const auto& [path, values] : part)
    for (const auto& [name, text] : values) {
      ASSERT_TRUE(whole.contains(path) && whole.at(path).contains(name)) << length << ' ' << path << ' ' << name;
      EXPECT_TRUE(whole.at(path).at(name).starts_with(text)) << length << ' ' << text;
    }
}

/// Whatever the text is: reading it ends, and what was read can be written and read again.
void ExpectSurvives(const std::string& text) {
  const auto keys = ParseSettings(text);
  if (!keys) return;
  EXPECT_EQ(ParseSettings(WriteSettings(*keys)), keys) << text;
  EXPECT_EQ(ParseSettings(WriteSettings(*keys, text)), keys) << text;
}

TEST(SettingsDamage, AFileCutAtAnyByteHasNoSettingThatWasNotThere) {
  const std::string text = WriteSettings(kWholeSettings);
  for (std::size_t length = 0; length <= text.size(); ++length)
    ExpectPartOf(ParseSettings(text.substr(0, length)).value_or(SettingsKeys()), kWholeSettings, length);
}

TEST(SettingsDamage, AfterACutAtAnyByteTheOptionsAreReadAsTheyStandOrSetBack) {
  const std::string text = WriteSettings(kWholeSettings);
  for (std::size_t length = 0; length <= text.size(); ++length) {
    const OptionsOver program(text.substr(0, length));
    const COptions& options = program.Options();
    // A number that was cut is a shorter one.
    EXPECT_TRUE(options.FavoritesThreshold() == 12 || options.FavoritesThreshold() == 1 ||
                options.FavoritesThreshold() == 3)
        << length;
    EXPECT_TRUE(options.PurgeAge() == 345 || options.PurgeAge() == 34 || options.PurgeAge() == 3 ||
                options.PurgeAge() == 30)
        << length;
    EXPECT_TRUE(options.TimerInterval() == 10 || options.TimerInterval() == 1 || options.TimerInterval() == 60)
        << length;
  }
}

TEST(SettingsDamage, AfterACutAtAnyByteTheFileIsWholeAgain) {
  const std::string text = WriteSettings(kWholeSettings);
  for (std::size_t length = 0; length <= text.size(); ++length) {
    const OptionsOver program(text.substr(0, length));
    const auto keys = ParseSettings(program.FileText());
    ASSERT_TRUE(keys && keys->contains(kOptions)) << length;
    EXPECT_EQ(keys->at(kOptions).size(), kWholeSettings.at(kOptions).size()) << length;
    ExpectSurvives(program.FileText());
  }
}

TEST(SettingsDamage, FlippedBitsAreSurvived) {
  const std::string whole = WriteSettings(kWholeSettings);
  std::mt19937 random(4711);
  for (int i = 0; i < 10'000; ++i) {
    std::string text = whole;
    for (std::size_t flips = 1 + random() % 8; flips > 0; --flips) {
      char& byte = text[random() % text.size()];
      byte = static_cast<char>(byte ^ 1 << random() % 8);
    }
    ExpectSurvives(text);
  }
}

TEST(SettingsDamage, RandomBytesAreSurvived) {
  std::mt19937 random(20261121);
  for (int i = 0; i < 10'000; ++i) {
    std::string text = "[K]\n";
    constexpr std::string_view kBytes = "[]=\\x@ \n\r\t;#aA0\xC3\xA4\xFF";
    for (std::size_t rest = random() % 200; rest > 0; --rest) text += kBytes[random() % kBytes.size()];
    ExpectSurvives(text);
  }
}

TEST(SettingsDamage, AFileOfWhichTheDiskTellsNothingIsNotReplaced) {
  const testing::TemporaryFolder folder;
  const std::string stored = WriteSettings(kWholeSettings);
  const std::string path = folder.Write("dayvane.ini", stored);
  EXPECT_TRUE(testing::OnABrokenDisk([&] {
    SettingsFile file(path, [](const std::string&) {});
    const bool isUnknown = !file.Value(kOptions, "Purge Age");
    try {
      file.SetValue(kOptions, "Purge Age", "30");
    } catch (const Error&) {
      return isUnknown;
    }
    return false;
  }));
  EXPECT_EQ(ReadFile(path), stored);
}

}  // namespace
}  // namespace dayvane::registry
