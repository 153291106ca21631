// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "linux/registry/SettingsText.h"

namespace dayvane::registry {
namespace {

constexpr const char* kOptionsKey = "Software\\Korvath\\Dayvane\\Options";

SettingsKeys WithValue(const std::string& name, const std::string& text) {
  return {{kOptionsKey, {{name, text}}}};
}

TEST(SettingsText, IsReadableAsItStands) {
  const SettingsKeys keys{{kOptionsKey, {{"Favorites Threshold", "3"}, {"Purge Age", "30"}}},
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
    EXPECT_EQ(ParseSettings(WriteSettings(WithValue("Name", text))), WithValue("Name", text)) << text;
  }
}

TEST(SettingsText, EveryNameComesBackUnchanged) {
  for (const char* name : {"", "@", "Favorites Threshold", "a=b", "[a]", "a[b]", "a]b", ";a", "#a", " a ", "a\\b",
                           "a\nb", "Größe", "Encoding"})
    EXPECT_EQ(ParseSettings(WriteSettings(WithValue(name, "text"))), WithValue(name, "text")) << name;
}

TEST(SettingsText, IsFreeForAPersonToEdit) {
  EXPECT_EQ(ParseSettings("\xEF\xBB\xBF; my settings\r\n\r\n  [Software\\Korvath\\Dayvane\\Options]  \r\n# often\r\n"
                          " Timer Interval = 5 "),
            WithValue("Timer Interval", "5"));
}

TEST(SettingsText, TheLaterOfTwoTextsHolds) {
  const auto keys = ParseSettings("[K]\nPurge Age=30\npurge age=31\n");
  EXPECT_EQ(keys, (SettingsKeys{{"K", {{"Purge Age", "31"}}}}));
}

TEST(SettingsText, TheLaterOfTwoTextsIsReplacedToo) {
  const std::string text = WriteSettings({{"K", {{"Purge Age", "32"}}}}, "[K]\nPurge Age=30\n[k]\npurge age=31\n");
  EXPECT_EQ(ParseSettings(text), (SettingsKeys{{"K", {{"Purge Age", "32"}}}}));
}

TEST(SettingsText, CommentsEmptyLinesAndOrderStayWhenAValueChanges) {
  const std::string text =
      "# mine\n"
      "\n"
      "[Software\\Korvath\\Dayvane\\Options]\n"
      "; not before\n"
      "  ; lunch\n"
      "Timer Interval=5\n"
      "#;\n"
      "\n"
      "\n"
      "Purge Age=30\n"
      "# the end\n";
  SettingsKeys keys = ParseSettings(text).value();
  EXPECT_EQ(WriteSettings(keys, text), text);
  keys[kOptionsKey]["Timer Interval"] = "60";
  EXPECT_EQ(WriteSettings(keys, text), std::string(text).replace(text.find('5'), 1, "60"));
}

TEST(SettingsText, ANewValueStandsWithTheOthersOfItsKey) {
  const std::string before = "[K]\n# often\nTimer Interval=5\n";
  const std::string after = "\n; places\n# of the window\n\n[L]\nLeft=1\n";
  SettingsKeys keys = ParseSettings(before + after).value();
  keys["K"]["Purge Age"] = "30";
  keys["M"]["Data"] = "0";
  EXPECT_EQ(WriteSettings(keys, before + after), before + "Purge Age=30\n" + after + "\n[M]\nData=0\n");
}

TEST(SettingsText, OneLineThatMeansNothingIsDamage) {
  for (const std::string line : {"no value", "=text", "[", "[]", "[open", "\xFF\xFE=text", "a\x01=text"})
    EXPECT_EQ(ParseSettings("[K]\nbefore=1\n" + line + "\n[L]\nafter=2\n"), std::nullopt) << line;
  EXPECT_EQ(ParseSettings(std::string_view("[K]\nbefore=1\0\n", 14)), std::nullopt);
  EXPECT_EQ(ParseSettings("of no key=1\n[K]\n"), std::nullopt);
}

TEST(SettingsText, CutAnywhereItKeepsTheValuesBeforeTheCutOrIsDamaged) {
  const std::string first = "[K]\nFavorites Threshold=3\n";
  const std::string second = "Purge Age=30\n[L]\nName=\\x41\n";
  for (std::size_t length = 0; length <= second.size(); ++length) {
    const auto keys = ParseSettings(first + second.substr(0, length));
    EXPECT_TRUE(!keys || keys->at("K").at("Favorites Threshold") == "3") << length;
  }
}

TEST(SettingsText, CutAnywhereNoOtherNamesAppear) {
  const std::string whole = "[K]\nFavorites Threshold=3\n[L]\nPurge Age=30\n";
  for (std::size_t length = 0; length <= whole.size(); ++length)
    for (const auto& [path, values] : ParseSettings(whole.substr(0, length)).value_or(SettingsKeys()))
      for (const auto& value : values)
        EXPECT_EQ(value.first, path == "K" ? "Favorites Threshold" : "Purge Age") << length;
}

TEST(SettingsText, CutBetweenLinesItIsNoDamage) {
  const std::string whole = "# mine\n[K]\nFavorites Threshold=3\n[L]\nPurge Age=30\n";
  for (auto end = whole.find('\n'); end != std::string::npos; end = whole.find('\n', end + 1))
    EXPECT_NE(ParseSettings(whole.substr(0, end + 1)), std::nullopt) << end;
}

TEST(SettingsText, LinesOfAnotherSystemAreReadEvenWhenTheLastIsCut) {
  const std::string text = "[K]\r\n# mine\r\n\r\nPurge Age=30\r";
  EXPECT_EQ(ParseSettings(text), (SettingsKeys{{"K", {{"Purge Age", "30"}}}}));
  EXPECT_EQ(WriteSettings(*ParseSettings(text), text), "[K]\n# mine\n\nPurge Age=30\n");
  EXPECT_EQ(ParseSettings("[K]\r\r\nPurge Age=30\r\n"), std::nullopt);
}

TEST(SettingsText, NothingIsNoDamage) {
  EXPECT_EQ(ParseSettings(""), SettingsKeys());
}

}  // namespace
}  // namespace dayvane::registry
