#include <gtest/gtest.h>

#include "linux/registry/SettingsText.h"

namespace dayvane::registry {
namespace {

constexpr const char* kOptions = "Software\\Korvath\\Dayvane\\Options";

SettingsKeys WithValue(const std::string& name, const std::string& text) {
  return {{kOptions, {{name, text}}}};
}

TEST(SettingsText, IsReadableAsItStands) {
  const SettingsKeys keys{{kOptions, {{"Favorites Threshold", "3"}, {"Purge Age", "30"}}},
                          {"Software\\Korvath\\Dayvane\\Window", {{"Visible", "True"}}}};
  EXPECT_EQ(WriteSettings(keys),
            "[Software\\Korvath\\Dayvane\\Options]\n"
            "Favorites Threshold=3\n"
            "Purge Age=30\n"
            "\n"
            "[Software\\Korvath\\Dayvane\\Window]\n"
            "Visible=True\n");
}

TEST(SettingsText, EveryTextComesBackUnchanged) {
  const std::string everyByte = [] {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    return bytes;
  }();
  for (const std::string& text :
       {std::string(), std::string("3"), std::string("a, b; c # d = e"), std::string("\"quoted\" 'text'"),
        std::string("line\nbreak\r\nand\ttab"), std::string("  blanks at the ends "), std::string(" "),
        std::string("@Invalid()"), std::string("C:\\new\\x41\\s\\"), std::string("März 文書 🗓 e\xCC\x81"),
        everyByte}) {
    const ParsedSettings parsed = ParseSettings(WriteSettings(WithValue("Name", text)));
    EXPECT_FALSE(parsed.damaged) << text;
    EXPECT_EQ(parsed.keys, WithValue("Name", text));
  }
}

TEST(SettingsText, EveryNameComesBackUnchanged) {
  for (const char* name : {"", "@", "Favorites Threshold", "a=b", "[a]", ";a", "#a", " a ", "a\\b", "a\nb", "Größe"}) {
    const ParsedSettings parsed = ParseSettings(WriteSettings(WithValue(name, "text")));
    EXPECT_FALSE(parsed.damaged) << name;
    EXPECT_EQ(parsed.keys, WithValue(name, "text")) << name;
  }
}

TEST(SettingsText, IsFreeForAPersonToEdit) {
  const ParsedSettings parsed = ParseSettings(
      "\xEF\xBB\xBF; my settings\r\n\r\n  [Software\\Korvath\\Dayvane\\Options]  \r\n# often\r\n Timer Interval = 5 ");
  EXPECT_FALSE(parsed.damaged);
  EXPECT_EQ(parsed.keys, WithValue("Timer Interval", "5"));
}

TEST(SettingsText, TheLaterOfTwoTextsHolds) {
  const ParsedSettings parsed = ParseSettings("[K]\nPurge Age=30\npurge age=31\n");
  EXPECT_EQ(parsed.keys.at("K").at("Purge Age"), "31");
}

TEST(SettingsText, LinesThatMeanNothingAreSkippedAndCountAsDamage) {
  for (const std::string line : {"no value", "=text", "[", "[]", "[open", "\xFF\xFE=text", "a\x01=text"}) {
    const ParsedSettings parsed = ParseSettings("[K]\nbefore=1\n" + line + "\n[L]\nafter=2\n");
    EXPECT_TRUE(parsed.damaged) << line;
    EXPECT_EQ(parsed.keys.at("K").at("before"), "1") << line;
    EXPECT_EQ(parsed.keys.at("L").at("after"), "2") << line;
  }
}

TEST(SettingsText, ValuesBelowAnUnreadableKeyBelongToNoOther) {
  const ParsedSettings parsed = ParseSettings("[K]\na=1\n[L\nb=2\n");
  EXPECT_EQ(parsed.keys, (SettingsKeys{{"K", {{"a", "1"}}}}));
}

TEST(SettingsText, CutAnywhereItKeepsTheValuesBeforeTheCut) {
  const std::string first = "[K]\nFavorites Threshold=3\n";
  const std::string second = "Purge Age=30\n[L]\nName=\\x41\n";
  for (std::size_t length = 0; length <= second.size(); ++length) {
    const ParsedSettings parsed = ParseSettings(first + second.substr(0, length));
    EXPECT_EQ(parsed.keys.at("K").at("Favorites Threshold"), "3") << length;
  }
}

TEST(SettingsText, CutAnywhereNoOtherNamesAppear) {
  const std::string whole = "[K]\nFavorites Threshold=3\n[L]\nPurge Age=30\n";
  for (std::size_t length = 0; length <= whole.size(); ++length)
    for (const auto& [path, values] : ParseSettings(whole.substr(0, length)).keys)
      for (const auto& value : values)
        EXPECT_EQ(value.first, path == "K" ? "Favorites Threshold" : "Purge Age") << length;
}

TEST(SettingsText, NothingIsNoDamage) {
  EXPECT_FALSE(ParseSettings("").damaged);
  EXPECT_TRUE(ParseSettings("").keys.empty());
}

}  // namespace
}  // namespace dayvane::registry
