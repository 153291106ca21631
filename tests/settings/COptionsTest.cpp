// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/Error.h"
#include "base/Text.h"
#include "settings/COptions.h"
#include "settings/FOptions.h"
#include "settings/SettingsStore.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

class COptionsTest : public ::testing::Test {
 protected:
  std::map<std::string, std::string>& Stored() { return desktop.registry.Settings("Options"); }

  /// Changes the options with a user who does this in the dialog.
  bool Change(const std::function<void(FOptions&)>& user) {
    FOptions* shown = nullptr;
    const auto loaded = options.DialogLoaded.ConnectScoped([&](FOptions& dialog) { shown = &dialog; });
    desktop.windowing.showModal = [&](controls::Form&) { user(*shown); };
    return options.ChangeValues();
  }

  testing::TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  COptions options{application};
};

TEST_F(COptionsTest, TheFirstRunStoresTheDefaultsAsTexts) {
  options.ReadValues();
  EXPECT_TRUE(options.DefaultOptionsUsed());
  const std::map<std::string, std::string> defaults{
      {"Favorites Threshold", "3"}, {"Purge Age", "30"}, {"Timer Interval", "60"}};
  EXPECT_EQ(Stored(), defaults);
  EXPECT_EQ(options.FavoritesThreshold(), 3);
  EXPECT_EQ(options.PurgeAge(), 30);
  EXPECT_EQ(options.TimerInterval(), 60);
}

TEST_F(COptionsTest, AnotherProductOfTheMakerKeepsItsKeys) {
  desktop.registry.keys["\\HKEY_CURRENT_USER\\Software\\Korvath"];
  desktop.registry.keys["\\HKEY_CURRENT_USER\\Software\\Korvath\\Other"]["x"] = "1";
  options.ReadValues();
  EXPECT_EQ(desktop.registry.keys["\\HKEY_CURRENT_USER\\Software\\Korvath\\Other"]["x"], "1");
  EXPECT_TRUE(options.DefaultOptionsUsed());
}

TEST_F(COptionsTest, StoredValuesAreReadAndAreNoDefaults) {
  Stored() = {{"Favorites Threshold", "5"}, {"Purge Age", "90"}, {"Timer Interval", "1"}};
  options.ReadValues();
  EXPECT_FALSE(options.DefaultOptionsUsed());
  EXPECT_EQ(options.FavoritesThreshold(), 5);
  EXPECT_EQ(options.PurgeAge(), 90);
  EXPECT_EQ(options.TimerInterval(), 1);
}

TEST_F(COptionsTest, AnIntervalBeyondTheDialogsRangeIsReadWithoutComplaint) {
  Stored() = {{"Favorites Threshold", "3"}, {"Purge Age", "30"}, {"Timer Interval", "600"}};
  options.ReadValues();
  EXPECT_EQ(options.TimerInterval(), 600);
}

TEST_F(COptionsTest, ABadValueResetsItselfAndThoseAfterItButNotThoseBefore) {
  Stored() = {{"Favorites Threshold", "7"}, {"Purge Age", "abc"}, {"Timer Interval", "10"}};
  options.ReadValues();
  const std::map<std::string, std::string> expected{
      {"Favorites Threshold", "7"}, {"Purge Age", "30"}, {"Timer Interval", "60"}};
  EXPECT_EQ(Stored(), expected);
  EXPECT_EQ(options.FavoritesThreshold(), 7);
  EXPECT_EQ(options.PurgeAge(), 30);
  EXPECT_EQ(options.TimerInterval(), 60);
}

TEST_F(COptionsTest, AMissingValueIsAddedAgain) {
  Stored() = {{"Favorites Threshold", "7"}, {"Purge Age", "8"}};
  options.ReadValues();
  EXPECT_EQ(Stored()["Timer Interval"], "60");
  EXPECT_EQ(options.PurgeAge(), 8);
}

TEST_F(COptionsTest, AKeyThatCannotBeCreatedIsAnErrorForTheCaller) {
  desktop.registry.unwritable = "\\HKEY_CURRENT_USER\\Software";
  EXPECT_THROW(options.ReadValues(), Error);
}

TEST_F(COptionsTest, AMissingOptionThatCannotBeAddedHasItsDefault) {
  Stored() = {{"Favorites Threshold", "7"}, {"Purge Age", "8"}};
  desktop.registry.refusesValues = true;
  EXPECT_NO_THROW(options.ReadValues());
  EXPECT_EQ(options.PurgeAge(), 8);
  EXPECT_EQ(options.TimerInterval(), 60);
}

TEST_F(COptionsTest, BeforeAReadAllValuesAreZero) {
  EXPECT_EQ(options.FavoritesThreshold() + options.PurgeAge() + options.TimerInterval(), 0);
}

TEST_F(COptionsTest, TheDefaultsOnceUsedStayUsed) {
  options.ReadValues();
  options.ReadValues();
  EXPECT_TRUE(options.DefaultOptionsUsed());
}

TEST_F(COptionsTest, TheDialogStartsFromTheStoredValues) {
  Stored() = {{"Favorites Threshold", "5"}, {"Purge Age", "90"}, {"Timer Interval", "600"}};
  std::vector<std::string> texts;
  Change([&](FOptions& dialog) {
    for (const auto& box : dialog.txtOptions) texts.push_back(box.Text());
  });
  EXPECT_EQ(texts, (std::vector<std::string>{"5", "90", "600"}));
}

TEST_F(COptionsTest, AcceptedValuesAreStoredAsTexts) {
  EXPECT_TRUE(Change([](FOptions& dialog) {
    dialog.txtOptions[0].SetText("7");
    dialog.txtOptions[1].SetText("5000");
    dialog.txtOptions[2].SetText("0015");
    dialog.cmdOptions[FOptions::kOk].Press();
  }));
  const std::map<std::string, std::string> expected{
      {"Favorites Threshold", "7"}, {"Purge Age", "5000"}, {"Timer Interval", "15"}};
  EXPECT_EQ(Stored(), expected);
  EXPECT_EQ(options.FavoritesThreshold(), 7);
  EXPECT_EQ(options.PurgeAge(), 5000);
  EXPECT_EQ(options.TimerInterval(), 15);
}

TEST_F(COptionsTest, ACancelledDialogChangesNothing) {
  Stored() = {{"Favorites Threshold", "5"}, {"Purge Age", "90"}, {"Timer Interval", "10"}};
  const auto before = Stored();
  EXPECT_FALSE(Change([](FOptions& dialog) {
    dialog.txtOptions[0].SetText("7");
    dialog.cmdOptions[FOptions::kCancel].Press();
  }));
  EXPECT_EQ(Stored(), before);
  EXPECT_EQ(options.FavoritesThreshold(), 5);
}

TEST_F(COptionsTest, TheDialogIsUnloadedHoweverItEnded) {
  for (const auto command : {FOptions::kOk, FOptions::kCancel}) {
    bool unloaded = false;
    Change([&](FOptions& dialog) {
      dialog.form.Unloaded.Connect([&] { unloaded = true; });
      dialog.cmdOptions[command].Press();
    });
    EXPECT_TRUE(unloaded);
  }
}

TEST_F(COptionsTest, OptionsThatCannotBeStoredAreAnErrorForTheCaller) {
  EXPECT_THROW(Change([this](FOptions& dialog) {
                 dialog.cmdOptions[FOptions::kOk].Press();
                 desktop.registry.EraseSettings("Options");
               }),
               Error);
}

TEST(SettingsStore, NumbersAreStoredInTheirShortestDecimalForm) {
  EXPECT_EQ(text::NumberText(1440), "1440");
  EXPECT_EQ(text::NumberText(1012.5), "1012.5");
  EXPECT_EQ(text::NumberText(-7), "-7");
}

TEST(SettingsStore, ASizeBeyondSixteenBitsDoesNotConvert) {
  EXPECT_EQ(settings::ToInt16("32767"), 32767);
  EXPECT_EQ(settings::ToInt16("-32768"), -32768);
  EXPECT_EQ(settings::ToInt16("32768"), std::nullopt);
  EXPECT_EQ(settings::ToInt16("-32769"), std::nullopt);
  EXPECT_EQ(settings::ToInt16("nan"), std::nullopt);
  EXPECT_EQ(settings::ToInt16(""), std::nullopt);
}

TEST(SettingsStore, AFractionRoundsToTheEvenNeighbour) {
  EXPECT_EQ(settings::ToInt16("1012.5"), 1012);
  EXPECT_EQ(settings::ToInt16("1013.5"), 1014);
}

TEST(SettingsStore, FlagsAreTrueAndFalse) {
  EXPECT_EQ(settings::FlagText(true), "True");
  EXPECT_EQ(settings::FlagText(false), "False");
  EXPECT_EQ(settings::ToFlag("True"), true);
  EXPECT_EQ(settings::ToFlag("false"), false);
  EXPECT_EQ(settings::ToFlag("maybe"), std::nullopt);
}

TEST(SettingsStore, TheSubtreesPathIsTheProductKeys) {
  EXPECT_EQ(settings::SubtreePath("Options"), "\\HKEY_CURRENT_USER\\Software\\Korvath\\Dayvane\\Options");
}

TEST(SettingsStore, AValueThatDoesNotConvertIsSetBackToItsDefault) {
  testing::TestRegistry registry;
  registry.Settings("View") = {{"Data", "x"}};
  const settings::Subtree view(registry, "View", {{"Data", "0"}, {"ListViews", "3"}});
  EXPECT_EQ(view.Number(0), 0);
  EXPECT_EQ(view.Number(1), 3);
  const std::map<std::string, std::string> expected{{"Data", "0"}, {"ListViews", "3"}};
  EXPECT_EQ(registry.Settings("View"), expected);
}

TEST(SettingsStore, AValueThatCannotBeSetBackReadsAsItsDefaultAllTheSame) {
  testing::TestRegistry registry;
  registry.Settings("View") = {{"Data", "1"}};
  registry.refusesValues = true;
  const settings::Subtree view(registry, "View", {{"Data", "0"}, {"ListViews", "3"}});
  EXPECT_EQ(view.Number(0), 1);
  EXPECT_EQ(view.Number(1), 3);
}

}  // namespace
}  // namespace dayvane
