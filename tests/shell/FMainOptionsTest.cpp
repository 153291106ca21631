// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "settings/FOptions.h"
#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

/// The main window with a document of two days, at a threshold of 2 days, and one of a single day.
class MainOptionsTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  MainOptionsTest() {
    desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-20 09:15:00");
    Load();
    for (const char* name : {"Z:\\home\\ana\\a.odt", "Z:\\home\\ana\\b.odt"})
      desktop.OpenDocument(name, "2026-11-21 09:15:00");
    Tick();
    window.SetActiveView(FMain::kFavoritesView);
    window.OptionsLoaded.Connect([this](FOptions& dialog) { m_shown = &dialog; });
    window.lvwFavorites.ContentsChanged.Connect([this] { ++refills; });
  }

  /// Chooses the options command as a user who does this in the dialog.
  void Change(const std::function<void(FOptions&)>& user) {
    desktop.windowing.showModal = [&](controls::Form& form) {
      ASSERT_NE(m_shown, nullptr);
      ASSERT_EQ(&form, &m_shown->form);
      user(*m_shown);
    };
    window.mnuViewPopup.Choose(kViewOptions);
  }
  void Change(std::size_t field, const std::string& text) {
    Change([&](FOptions& dialog) {
      dialog.txtOptions.at(field).SetText(text);
      dialog.cmdOptions[FOptions::kOk].Press();
    });
  }

  int refills = 0;  ///< of the Favorites list

 private:
  FOptions* m_shown = nullptr;
};

TEST_F(MainOptionsTest, ANewThresholdRefillsTheFavoritesAndTheirCount) {
  EXPECT_THAT(testing::ColumnOf(window.lvwFavorites, 0), ElementsAre("a.odt"));
  Change(0, "1");
  EXPECT_EQ(window.lvwFavorites.Count(), 2U);
  EXPECT_EQ(window.sbrMain.Text(), "2 objects");
  Change(0, "3");
  EXPECT_EQ(window.lvwFavorites.Count(), 0U);
  EXPECT_EQ(window.sbrMain.Text(), "0 objects");
}

TEST_F(MainOptionsTest, ANewIntervalIsTheTimersAtOnce) {
  Change(2, "7");
  EXPECT_EQ(window.tmrMain.Interval(), 7000);
  EXPECT_EQ(refills, 0);
}

TEST_F(MainOptionsTest, ANewPurgeAgeAloneNeitherRefillsTheListNorTouchesTheTimer) {
  int touched = 0;
  window.tmrMain.Changed.Connect([&] { ++touched; });
  Change(1, "60");
  EXPECT_EQ(desktop.registry.Settings("Options")["Purge Age"], "60");
  EXPECT_EQ(refills, 0);
  EXPECT_EQ(touched, 0);
}

TEST_F(MainOptionsTest, ANewPurgeAgeHoldsFromTheNextPollOn) {
  desktop.OpenDocument("Z:\\home\\ana\\old.odt", "2026-10-01 09:15:00");
  window.SetActiveView(FMain::kDailyView);
  Tick();
  EXPECT_EQ(window.tvwMain.Find(Key("2026\\October\\01")), nullptr);
  Change(1, "365");
  Tick();
  EXPECT_NE(window.tvwMain.Find(Key("2026\\October\\01")), nullptr);
}

TEST_F(MainOptionsTest, ACancelledDialogChangesNothing) {
  const auto before = desktop.registry.Settings("Options");
  Change([](FOptions& dialog) {
    dialog.txtOptions[0].SetText("1");
    dialog.txtOptions[2].SetText("7");
    dialog.cmdOptions[FOptions::kCancel].Press();
  });
  EXPECT_EQ(desktop.registry.Settings("Options"), before);
  EXPECT_EQ(window.lvwFavorites.Count(), 1U);
  EXPECT_EQ(window.tmrMain.Interval(), 60000);
}

TEST_F(MainOptionsTest, OptionsAcceptedAsTheyWereTouchNothing) {
  int touched = 0;
  window.tmrMain.Changed.Connect([&] { ++touched; });
  Change([](FOptions& dialog) { dialog.cmdOptions[FOptions::kOk].Press(); });
  EXPECT_EQ(refills, 0);
  EXPECT_EQ(touched, 0);
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(MainOptionsTest, WhileSuspendedANewIntervalDoesNotResumeCapture) {
  window.SetActive(false);
  Change(2, "7");
  EXPECT_EQ(window.tmrMain.Interval(), 7000);
  EXPECT_FALSE(window.tmrMain.Enabled());
}

TEST_F(MainOptionsTest, AfterAFailedPollANewIntervalStartsCaptureAgain) {
  desktop.shell.refresh = [] { throw Error(kDeviceIoError, "No list"); };
  Tick();
  Change(1, "60");
  EXPECT_FALSE(window.tmrMain.Enabled()) << "the purge age has nothing to do with it";
  Change(2, "7");
  EXPECT_TRUE(window.tmrMain.Enabled());
  EXPECT_TRUE(window.mnuFilePopup[kFileSuspend].Visible());
  EXPECT_FALSE(window.mnuFilePopup[kFileResume].Visible());
}

TEST_F(MainOptionsTest, OptionsThatCannotBeStoredAreReported) {
  Change([this](FOptions& dialog) {
    dialog.txtOptions[0].SetText("1");
    dialog.cmdOptions[FOptions::kOk].Press();
    desktop.registry.EraseSettings("Options");
  });
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred setting options."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"), ElementsAre(StartsWith("FMain.SetOptions\t35001\t")));
  EXPECT_EQ(window.lvwFavorites.Count(), 1U) << "the window goes on with the options it had";
}

}  // namespace
}  // namespace dayvane
