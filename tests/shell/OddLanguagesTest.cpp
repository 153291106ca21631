// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/MDayvane.h"
#include "base/Text.h"
#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::SizeIs;

struct Language {
  const char* name;
  platform::MonthNames months;
  const char* shortDate;
};

std::ostream& operator<<(std::ostream& out, const Language& language) {
  return out << language.name;
}

/// Languages whose months test something: letters beyond ASCII, a final sigma, names that begin with a digit, letters
/// whose capitals depend on the language.
const Language kLanguages[] = {
    {"German",
     {"Januar", "Februar", "März", "April", "Mai", "Juni", "Juli", "August", "September", "Oktober", "November",
      "Dezember"},
     "dd.mm.yy"},
    {"Greek",
     {"Ιανουάριος", "Φεβρουάριος", "Μάρτιος", "Απρίλιος", "Μάιος", "Ιούνιος", "Ιούλιος", "Αύγουστος", "Σεπτέμβριος",
      "Οκτώβριος", "Νοέμβριος", "Δεκέμβριος"},
     "d/m/yy"},
    {"Japanese", {"1月", "2月", "3月", "4月", "5月", "6月", "7月", "8月", "9月", "10月", "11月", "12月"}, "yyyy/mm/dd"},
    {"Turkish",
     {"Ocak", "Şubat", "Mart", "Nisan", "Mayıs", "Haziran", "Temmuz", "Ağustos", "Eylül", "Ekim", "Kasım", "Aralık"},
     "d.mm.yyyy"},
};

class OddLanguagesTest : public ::testing::TestWithParam<Language>, protected testing::MainWindow {
 protected:
  OddLanguagesTest() {
    desktop.dates.monthNames = GetParam().months;
    desktop.dates.shortDate = GetParam().shortDate;
    desktop.registry.Settings("Options")["Purge Age"] = "400";
  }

  /// Opens a document on the fifth of each month of the year.
  void OpenOneEachMonth() {
    for (int month = 1; month <= 11; ++month)
      desktop.OpenDocument("Z:\\home\\ana\\" + std::to_string(month) + ".odt",
                           "2026-" + text::Padded(month, 2) + "-05 09:00:00");
    desktop.OpenDocument("Z:\\home\\ana\\12.odt", "2025-12-05 09:00:00");
  }
  std::string Month(int month) const { return GetParam().months[static_cast<std::size_t>(month) - 1]; }
};

TEST_P(OddLanguagesTest, MonthsAreNamedAndStandInTheOrderOfTheCalendar) {
  OpenOneEachMonth();
  Load();
  std::vector<std::string> months;
  for (const auto& node : Node("2026").children) months.push_back(node->text);
  EXPECT_THAT(months, ElementsAreArray(GetParam().months.begin(), GetParam().months.begin() + 11));
  EXPECT_TRUE(fs::exists(testing::PathOf(Daily("2025/" + Month(12) + "/05/12.odt.lnk"))));
}

TEST_P(OddLanguagesTest, EveryDayIsShownAtAClickAndTheCalendarGoesThere) {
  OpenOneEachMonth();
  Load();
  for (int month = 1; month <= 11; ++month) {
    controls::TreeNode& day = Node("2026\\" + Month(month) + "\\05");
    window.tvwMain.SetSelectedItem(&day);
    window.tvwMain.NodeClick.Raise(day);
    EXPECT_THAT(testing::ColumnOf(window.lvwDaily, 0), ElementsAre(std::to_string(month) + ".odt"));
    EXPECT_EQ(Date(std::chrono::local_seconds(window.calMain.CurrentDate())),
              Date::Of(2026, static_cast<unsigned>(month), 5));
    EXPECT_TRUE(window.calMain.Highlight(5));
  }
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_P(OddLanguagesTest, TheCalendarChoosesTheDayAndTheLatestOneAtTheStart) {
  OpenOneEachMonth();
  Load();
  window.form.Activate.Raise();
  EXPECT_THAT(testing::ColumnOf(window.lvwDaily, 0), ElementsAre("11.odt"));
  for (int month = 1; month <= 11; ++month) {
    window.calMain.SetCurrentDate(std::chrono::local_days{std::chrono::year{2026} / month / 5});
    EXPECT_THAT(testing::ColumnOf(window.lvwDaily, 0), ElementsAre(std::to_string(month) + ".odt"));
  }
}

TEST_P(OddLanguagesTest, OldDaysArePurgedToTheDay) {
  for (int month = 1; month <= 12; ++month)
    fs::create_directories(testing::PathOf(Daily("2025/" + Month(month) + "/05")));
  desktop.clock.Set(2026, 8, 10);  // 401 days before is 5 July 2025.
  EXPECT_TRUE(repository.PurgeOldShortcuts(400));
  for (int month = 1; month <= 12; ++month)
    EXPECT_EQ(fs::exists(testing::PathOf(Daily("2025/" + Month(month) + "/05"))), month > 7) << Month(month);
  EXPECT_THAT(desktop.windowing.messages, SizeIs(1));
}

TEST_P(OddLanguagesTest, NoTwoMonthsAreTheSameWhateverTheirCase) {
  for (int a = 1; a <= 12; ++a)
    for (int b = 1; b <= 12; ++b) {
      EXPECT_EQ(text::CompareIgnoringCase(Month(a), Month(b)) == 0, a == b);
      EXPECT_EQ(text::ToUpper(Month(a)) == text::ToUpper(Month(b)), a == b);
    }
}

INSTANTIATE_TEST_SUITE_P(Months, OddLanguagesTest, ::testing::ValuesIn(kLanguages),
                         [](const auto& language) { return std::string(language.param.name); });

}  // namespace
}  // namespace dayvane
