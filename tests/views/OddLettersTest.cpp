// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;

/// Folders and documents whose letters change in an unusual way between capitals and small letters.
class OddLettersTest : public ::testing::TestWithParam<const char*>, protected testing::MainWindow {};

TEST_P(OddLettersTest, ADocumentIsCountedOnEachOfItsDays) {
  const std::string document = std::string("Z:\\home\\ana\\") + GetParam();
  for (const char* day : {"2026-11-19", "2026-11-20", "2026-11-21"}) {
    desktop.OpenDocument(document, std::string(day) + " 09:00:00");
    if (!window.Favorites()) Load();
    Tick();
  }
  EXPECT_THAT(testing::ColumnOf(window.lvwFavorites, 3), ElementsAre("    3"));
}

INSTANTIATE_TEST_SUITE_P(Names, OddLettersTest,
                         ::testing::Values("İndirilenler\\Kasım raporu.odt", "IŞIK\\ısı.odt", "ΟΔΟΣ\\Λόγος.odt",
                                           "Λόγος\\ΟΔΟΣ.odt", "STRAẞE\\Maß.odt", "ŞUBAT\\İş.odt", "書類\\11月.odt"));

}  // namespace
}  // namespace dayvane
