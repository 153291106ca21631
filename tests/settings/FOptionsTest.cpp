// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

#include "base/Error.h"
#include "settings/FOptions.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr int kBackspace = 8;
constexpr int kF1 = 112;
constexpr std::array<const char*, 3> kRangeMessages{"The Favorites Threshhold must be 1 or more.",
                                                    "The Purge age must be 1 or more.",
                                                    "The Timer Interval must be between 1 and 60."};

/// The dialog with 5 days, 90 days and 10 seconds in it.
class FOptionsTest : public ::testing::Test {
 protected:
  FOptionsTest() {
    dialog.SetFavoritesThreshold(5);
    dialog.SetPurgeAge(90);
    dialog.SetTimerInterval(10);
  }

  /// Goes to a field and types: what was selected is replaced, what the field refuses is left out.
  void Type(std::size_t field, std::string_view keys) {
    controls::TextBox& box = dialog.txtOptions.at(field);
    box.GotFocus.Raise();
    std::string text = box.Text();
    text.erase(static_cast<std::size_t>(box.SelStart()), static_cast<std::size_t>(box.SelLength()));
    for (const char key : keys)
      if (box.Type(key)) text += key;
    box.SetText(text);
  }

  /// Shows the dialog to a user who does this. Returns what it answers in the end.
  bool Show(const std::function<void()>& user) {
    desktop.windowing.showModal = [&](controls::Form& form) {
      form.SetVisible(true);
      user();
    };
    return dialog.GetValues();
  }
  bool Press(FOptions::Command command) {
    return Show([&] { dialog.cmdOptions[command].Press(); });
  }

  testing::TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  FOptions dialog{application};
};

TEST_F(FOptionsTest, TheFieldsAndTheButtonsAreNamed) {
  EXPECT_EQ(dialog.lblOptions[0].Caption(), "&Favorites Threshold (1 or more days accessed):");
  EXPECT_EQ(dialog.lblOptions[1].Caption(), "&Purge Age (1 or more days):");
  EXPECT_EQ(dialog.lblOptions[2].Caption(), "&Timer Interval (1 to 60 seconds):");
  EXPECT_EQ(dialog.cmdOptions[0].Caption(), "OK");
  EXPECT_EQ(dialog.cmdOptions[1].Caption(), "Cancel");
  EXPECT_EQ(dialog.cmdOptions[2].Caption(), "&Help");
}

TEST_F(FOptionsTest, ALabelItsBoxAndItsArrowsShareOneHelpTopic) {
  constexpr std::array<int, 3> kTopics{2, 22, 6};
  for (std::size_t i = 0; i < kTopics.size(); ++i) {
    EXPECT_EQ(dialog.lblOptions[i].WhatsThisHelpID(), kTopics[i]);
    EXPECT_EQ(dialog.txtOptions[i].WhatsThisHelpID(), kTopics[i]);
    EXPECT_EQ(dialog.udOptions[i].WhatsThisHelpID(), kTopics[i]);
  }
}

TEST_F(FOptionsTest, TheValuesStandInTheirFieldsAsDecimalNumbers) {
  dialog.SetPurgeAge(2147483647);
  EXPECT_EQ(dialog.txtOptions[0].Text(), "5");
  EXPECT_EQ(dialog.txtOptions[1].Text(), "2147483647");
  EXPECT_EQ(dialog.txtOptions[2].Text(), "10");
}

TEST_F(FOptionsTest, WhatIsTypedIsReadBack) {
  Type(0, "12");
  Type(1, "5000");
  Type(2, "7");
  EXPECT_EQ(dialog.FavoritesThreshold(), 12);
  EXPECT_EQ(dialog.PurgeAge(), 5000);
  EXPECT_EQ(dialog.TimerInterval(), 7);
}

TEST_F(FOptionsTest, GoingToAFieldSelectsItsWholeText) {
  dialog.txtOptions[1].SetText("12345");
  dialog.txtOptions[1].GotFocus.Raise();
  EXPECT_EQ(dialog.txtOptions[1].SelStart(), 0);
  EXPECT_EQ(dialog.txtOptions[1].SelLength(), 5);
}

TEST_F(FOptionsTest, DigitsAndBackspaceMayBeTyped) {
  for (const char digit : std::string_view("0123456789")) EXPECT_TRUE(dialog.txtOptions[0].Type(digit)) << digit;
  EXPECT_TRUE(dialog.txtOptions[0].Type(kBackspace));
  EXPECT_EQ(desktop.windowing.beeps, 0);
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(FOptionsTest, AnythingElseIsDiscardedWithABeepAndTheFieldsRange) {
  for (std::size_t i = 0; i < kRangeMessages.size(); ++i) {
    Type(i, "3x");
    EXPECT_EQ(dialog.txtOptions[i].Text(), "3");
    EXPECT_EQ(desktop.windowing.beeps, static_cast<int>(i) + 1);
    ASSERT_EQ(desktop.windowing.messages.size(), i + 1);
    EXPECT_EQ(desktop.windowing.messages[i].text, kRangeMessages[i]);
    EXPECT_EQ(desktop.windowing.messages[i].title, "Dayvane");
    EXPECT_EQ(desktop.windowing.messages[i].icon, platform::MessageIcon::Information);
  }
}

TEST_F(FOptionsTest, SignsPointsAndBlanksAreNoPartOfANumber) {
  for (const char key : std::string_view("-+., ")) EXPECT_FALSE(dialog.txtOptions[0].Type(key)) << key;
}

TEST_F(FOptionsTest, OkWithinTheRangesAcceptsAndHidesTheDialog) {
  EXPECT_TRUE(Press(FOptions::kOk));
  EXPECT_FALSE(dialog.form.Visible());
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(FOptionsTest, TheEndsOfTheRangesAreAccepted) {
  for (const auto* values : {"1 1 1", "2147483647 2147483647 60"}) {
    std::istringstream words(values);
    for (auto& box : dialog.txtOptions) {
      std::string word;
      words >> word;
      box.SetText(word);
    }
    EXPECT_TRUE(Press(FOptions::kOk)) << values;
  }
}

/// A field and a text that it must not have.
class OutOfRangeTest : public FOptionsTest,
                       public ::testing::WithParamInterface<std::pair<std::size_t, const char*>> {};

INSTANTIATE_TEST_SUITE_P(Fields, OutOfRangeTest,
                         ::testing::Values(std::pair{0U, "0"}, std::pair{0U, "-1"}, std::pair{1U, "0"},
                                           std::pair{2U, "0"}, std::pair{2U, "61"}));

TEST_P(OutOfRangeTest, OkIsRefusedWithABeepAndTheRangeAndTheFieldGetsTheFocus) {
  const auto [field, text] = GetParam();
  std::vector<std::size_t> focused;
  for (std::size_t i = 0; i < 3; ++i) dialog.txtOptions[i].FocusWanted.Connect([&focused, i] { focused.push_back(i); });
  dialog.txtOptions.at(field).SetText(text);
  EXPECT_FALSE(Press(FOptions::kOk));
  EXPECT_TRUE(dialog.form.Visible()) << "it stays open";
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre(kRangeMessages.at(field)));
  EXPECT_EQ(desktop.windowing.beeps, 1);
  EXPECT_THAT(focused, ElementsAre(field));
}

TEST_F(FOptionsTest, OnlyTheFirstFieldOutOfRangeIsToldOf) {
  for (auto& box : dialog.txtOptions) box.SetText("0");
  dialog.txtOptions[0].SetText("1");
  Press(FOptions::kOk);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre(kRangeMessages[1]));
}

TEST_F(FOptionsTest, TheRangeIsToldInAnInformationBoxWithTheProgramsTitle) {
  dialog.txtOptions[0].SetText("0");
  Press(FOptions::kOk);
  ASSERT_EQ(desktop.windowing.messages.size(), 1U);
  EXPECT_EQ(desktop.windowing.messages[0].title, "Dayvane");
  EXPECT_EQ(desktop.windowing.messages[0].icon, platform::MessageIcon::Information);
  EXPECT_EQ(desktop.windowing.messages[0].buttons, platform::MessageButtons::Ok);
}

TEST_F(FOptionsTest, AfterACorrectionOkAccepts) {
  EXPECT_TRUE(Show([this] {
    Type(2, "61");
    dialog.cmdOptions[FOptions::kOk].Press();
    Type(2, "60");
    dialog.cmdOptions[FOptions::kOk].Press();
  }));
}

TEST_F(FOptionsTest, CancelRefusesWhateverWasEdited) {
  EXPECT_FALSE(Show([this] {
    Type(0, "0");
    dialog.cmdOptions[FOptions::kCancel].Press();
  }));
  EXPECT_FALSE(dialog.form.Visible());
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(FOptionsTest, ClosingTheDialogCancelsAndLeavesItToItsOwner) {
  EXPECT_FALSE(Show([this] { dialog.form.RequestUnload(controls::UnloadMode::ControlMenu); }));
  EXPECT_FALSE(dialog.form.Visible());
  EXPECT_FALSE(dialog.form.IsUnloaded());
}

TEST_F(FOptionsTest, ADialogShownAgainHasNotBeenAcceptedYet) {
  EXPECT_TRUE(Press(FOptions::kOk));
  EXPECT_FALSE(Show([] {}));
}

TEST_F(FOptionsTest, TheArrowsMoveANumberByOne) {
  for (std::size_t i = 0; i < 3; ++i) {
    const std::int32_t number = std::stoi(dialog.txtOptions[i].Text());
    dialog.udOptions[i].UpClick.Raise();
    EXPECT_EQ(dialog.txtOptions[i].Text(), std::to_string(number + 1));
    dialog.udOptions[i].DownClick.Raise();
    dialog.udOptions[i].DownClick.Raise();
    EXPECT_EQ(dialog.txtOptions[i].Text(), std::to_string(number - 1));
  }
  EXPECT_EQ(desktop.windowing.beeps, 0);
}

TEST_F(FOptionsTest, TheUpArrowStopsAtSixtySecondsWithABeepAlone) {
  dialog.SetTimerInterval(59);
  dialog.udOptions[2].UpClick.Raise();
  EXPECT_EQ(desktop.windowing.beeps, 0);
  dialog.udOptions[2].UpClick.Raise();
  EXPECT_EQ(dialog.TimerInterval(), 60);
  EXPECT_EQ(desktop.windowing.beeps, 1);
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(FOptionsTest, AnIntervalBeyondTheRangeIsLeftByTheUpArrow) {
  dialog.SetTimerInterval(600);
  dialog.udOptions[2].UpClick.Raise();
  EXPECT_EQ(dialog.TimerInterval(), 600);
  EXPECT_EQ(desktop.windowing.beeps, 1);
}

TEST_F(FOptionsTest, DaysHaveNoUpperLimitForTheArrows) {
  dialog.SetFavoritesThreshold(60);
  dialog.SetPurgeAge(99999);
  dialog.udOptions[0].UpClick.Raise();
  dialog.udOptions[1].UpClick.Raise();
  EXPECT_EQ(dialog.FavoritesThreshold(), 61);
  EXPECT_EQ(dialog.PurgeAge(), 100000);
}

TEST_F(FOptionsTest, TheLargestNumberIsLeftByTheUpArrow) {
  dialog.SetPurgeAge(2147483647);
  dialog.udOptions[1].UpClick.Raise();
  EXPECT_EQ(dialog.PurgeAge(), 2147483647);
  EXPECT_EQ(desktop.windowing.beeps, 1);
}

TEST_F(FOptionsTest, TheDownArrowStopsAtOneWithABeepAlone) {
  for (std::size_t i = 0; i < 3; ++i) {
    dialog.txtOptions[i].SetText("2");
    dialog.udOptions[i].DownClick.Raise();
    EXPECT_EQ(desktop.windowing.beeps, static_cast<int>(i));
    dialog.udOptions[i].DownClick.Raise();
    EXPECT_EQ(dialog.txtOptions[i].Text(), "1");
    EXPECT_EQ(desktop.windowing.beeps, static_cast<int>(i) + 1);
  }
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(FOptionsTest, TheHelpButtonOpensTheDialogsTopicAndLeavesItOpen) {
  EXPECT_FALSE(Press(FOptions::kHelp));
  EXPECT_THAT(desktop.help.shown, ElementsAre(desktop.Folder() + "\\Dayvane.hlp|1|11"));
  EXPECT_TRUE(dialog.form.Visible());
}

TEST_F(FOptionsTest, F1OpensTheDialogsTopicAndNoOtherKeyDoes) {
  dialog.form.KeyUp.Raise(kF1 + 1, 0);
  EXPECT_THAT(desktop.help.shown, IsEmpty());
  dialog.form.KeyUp.Raise(kF1, 0);
  EXPECT_THAT(desktop.help.shown, ElementsAre(desktop.Folder() + "\\Dayvane.hlp|1|11"));
}

TEST_F(FOptionsTest, PastedTextThatIsNoNumberFailsTheValidationAndKeepsTheDialogOpen) {
  for (const char* pasted : {"", "abc", "1.5", "2147483648"}) {
    desktop.windowing.messages.clear();
    dialog.txtOptions[0].SetText(pasted);
    EXPECT_FALSE(Press(FOptions::kOk)) << pasted;
    EXPECT_TRUE(dialog.form.Visible());
    EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred validating an entry."));
  }
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt").at(0), StartsWith("FOptions.cmdOptions_Click\t13\t"));
}

TEST_F(FOptionsTest, AnArrowBesidePastedTextReportsTheEntry) {
  dialog.txtOptions[1].SetText("abc");
  dialog.udOptions[1].UpClick.Raise();
  dialog.udOptions[1].DownClick.Raise();
  EXPECT_EQ(dialog.txtOptions[1].Text(), "abc");
  EXPECT_THAT(desktop.windowing.Texts(),
              ElementsAre("An error occurred entering a value.", "An error occurred entering a value."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"), ElementsAre(StartsWith("FOptions.udOptions_UpClick\t13\t"),
                                                            StartsWith("FOptions.udOptions_DownClick\t13\t")));
}

TEST_F(FOptionsTest, ASelectionThatFailsIsReported) {
  dialog.txtOptions[0].SelectionWanted.Connect([] { throw Error(kDeviceIoError, "The field cannot be shown"); });
  dialog.txtOptions[0].GotFocus.Raise();
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred selecting text."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"), ElementsAre(StartsWith("FOptions.txtOptions_GotFocus\t57\t")));
}

TEST_F(FOptionsTest, WhileTheDialogIsShownTheHourglassIsItsOwn) {
  controls::Form owner;
  application.activeForm = &owner;
  const controls::Form* active = nullptr;
  Show([&] { active = application.activeForm; });
  EXPECT_EQ(active, &dialog.form);
  EXPECT_EQ(application.activeForm, &owner);
}

TEST_F(FOptionsTest, ADialogThatCannotBeShownGivesTheHourglassBack) {
  controls::Form owner;
  application.activeForm = &owner;
  EXPECT_THROW(Show([] { throw Error(kDeviceIoError, "The dialog cannot be shown"); }), Error);
  EXPECT_EQ(application.activeForm, &owner);
}

}  // namespace
}  // namespace dayvane
