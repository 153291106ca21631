// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QElapsedTimer>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>

#include "linux/recent/RecentListWatch.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;

constexpr int kPatience = 20'000;  // milliseconds: GIO looks for a missing folder every four seconds

/// Runs the event loop until the condition holds; false when it does not in time.
template <class Condition>
bool Waits(Condition condition, int milliseconds = kPatience) {
  QElapsedTimer timer;
  timer.start();
  while (!condition() && timer.elapsed() < milliseconds)
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
  return condition();
}

/// As GTK does it: a finished file takes the list's place.
void Replace(const testing::TemporaryFolder& folder, const std::string& text) {
  fs::rename(folder.Write("share/list.A1B2C3", text), folder / "share/list");
}

TEST(RecentListWatch, AReplacedListIsTold) {
  const testing::TemporaryFolder folder;
  folder.Write("share/list", "one");
  int changes = 0;
  const RecentListWatch watch(folder / "share/list", [&] { ++changes; });
  Replace(folder, "two");
  EXPECT_TRUE(Waits([&] { return changes == 1; }));
  Replace(folder, "three");
  EXPECT_TRUE(Waits([&] { return changes == 2; })) << "the watch outlives the file it began with";
}

TEST(RecentListWatch, SeveralWritesInARowAreToldOnce) {
  const testing::TemporaryFolder folder;
  folder.Write("share/list", "one");
  int changes = 0;
  const RecentListWatch watch(folder / "share/list", [&] { ++changes; });
  for (const char* text : {"two", "three", "four"}) Replace(folder, text);
  EXPECT_TRUE(Waits([&] { return changes > 0; }));
  EXPECT_FALSE(Waits([&] { return changes > 1; }, 700));
}

TEST(RecentListWatch, AListWrittenInPlaceIsTold) {
  const testing::TemporaryFolder folder;
  folder.Write("share/list", "one");
  int changes = 0;
  const RecentListWatch watch(folder / "share/list", [&] { ++changes; });
  folder.Write("share/list", "two");
  EXPECT_TRUE(Waits([&] { return changes > 0; }));
}

TEST(RecentListWatch, AListThatAppearsIsTold) {
  const testing::TemporaryFolder folder;
  fs::create_directory(folder / "share");
  int changes = 0;
  const RecentListWatch watch(folder / "share/list", [&] { ++changes; });
  Replace(folder, "one");
  EXPECT_TRUE(Waits([&] { return changes > 0; }));
}

TEST(RecentListWatch, AListWhoseFolderAppearsIsTold) {
  const testing::TemporaryFolder folder;
  int changes = 0;
  const RecentListWatch watch(folder / "share/list", [&] { ++changes; });
  Replace(folder, "one");
  EXPECT_TRUE(Waits([&] { return changes > 0; }));
}

TEST(RecentListWatch, OtherFilesOfTheFolderAreNotTold) {
  const testing::TemporaryFolder folder;
  folder.Write("share/list", "one");
  int changes = 0;
  const RecentListWatch watch(folder / "share/list", [&] { ++changes; });
  folder.Write("share/other", "two");
  EXPECT_FALSE(Waits([&] { return changes > 0; }, 700));
}

TEST(RecentListWatch, NothingIsToldOnceItIsGone) {
  const testing::TemporaryFolder folder;
  folder.Write("share/list", "one");
  int changes = 0;
  {
    const RecentListWatch watch(folder / "share/list", [&] { ++changes; });
    Replace(folder, "two");
    Waits([] { return false; }, 200);  // so that its delay is running
  }
  EXPECT_FALSE(Waits([&] { return changes > 0; }, 700));
}

}  // namespace
}  // namespace dayvane::recent
