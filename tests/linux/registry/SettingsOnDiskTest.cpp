// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>

#include "linux/LinuxRegistry.h"
#include "linux/files/FileDescriptor.h"
#include "settings/FOptions.h"
#include "shell/FMain.h"
#include "tests/linux/disk/FullDisk.h"
#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

namespace fs = std::filesystem;

/// Counts how often a file of a folder is put in place, which is done by renaming.
class Replacements {
 public:
  explicit Replacements(const std::string& nativeFolder) : m_queue(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    if (inotify_add_watch(m_queue.Number(), nativeFolder.c_str(), IN_MOVED_TO) < 0)
      throw std::runtime_error("not watched: " + nativeFolder);
  }

  int Count() {
    alignas(inotify_event) char buffer[16384];
    for (ssize_t got = read(m_queue.Number(), buffer, sizeof buffer); got > 0;
         got = read(m_queue.Number(), buffer, sizeof buffer))
      for (const char* at = buffer; at < buffer + got;
           at += sizeof(inotify_event) + reinterpret_cast<const inotify_event*>(at)->len)
        ++m_count;
    return m_count;
  }

 private:
  files::FileDescriptor m_queue;
  int m_count = 0;
};

/// The main window with its settings in a real file.
class SettingsOnDiskTest : public ::testing::Test {
 protected:
  SettingsOnDiskTest() { fs::create_directories(Config()); }

  std::string Config() const { return desktop.folder / "config"; }
  std::string File() const { return Config() + "/dayvane.ini"; }
  void Load() { window.Form_Load(); }
  void End() { window.form.RequestUnload(controls::UnloadMode::SystemSession); }

  /// Puts a file where the folder of the settings should be, so that not even root can write them.
  void LockSettings() {
    fs::remove_all(Config());
    desktop.folder.Write("config", "");
  }

  /// What a user changes in the course of a day: place, views, columns of both lists.
  void ChangeEverything() {
    window.form.Move(1000, 1100, 5000, 6000);
    window.SetActiveView(FMain::kFavoritesView);
    window.SetListView(0);
    for (controls::ListView* list : {&window.lvwDaily, &window.lvwFavorites}) {
      for (std::size_t column = 0; column < list->Columns().size(); ++column) list->SetColumnWidth(column, 2000);
      list->ColumnClick.Raise(2);
    }
  }

  testing::TestDesktop desktop;
  std::vector<std::string> events;
  LinuxRegistry registry{File(), [this](const std::string& event) { events.push_back(event); }};
  const platform::Desktop onDisk{desktop.files,     desktop.shell, desktop.icons, registry,
                                 desktop.windowing, desktop.help,  desktop.clock, desktop.dates};
  Application application{onDisk, desktop.Folder()};
  CRepository repository{application};
  FMain window{application, repository};
};

TEST_F(SettingsOnDiskTest, EndingTheProgramReplacesTheSettingsFileOnce) {
  Load();
  ChangeEverything();
  Replacements replacements(Config());
  End();
  EXPECT_EQ(replacements.Count(), 1);
  const std::string stored = testing::ReadFile(File());
  for (const char* line : {"Left=1000\n", "Data=1\n", "Path Width=2000\n", "Last Accessed Width=2000\n"})
    EXPECT_THAT(stored, HasSubstr(line));
}

TEST_F(SettingsOnDiskTest, AnEndAfterWhichNothingIsNewDoesNotTouchTheSettingsFile) {
  Load();
  End();
  FMain next(application, repository);
  next.Form_Load();
  Replacements replacements(Config());
  next.form.RequestUnload(controls::UnloadMode::SystemSession);
  EXPECT_EQ(replacements.Count(), 0);
}

TEST_F(SettingsOnDiskTest, AFirstStartReplacesTheSettingsFileOnceForEachGroupOfSettings) {
  desktop.folder.Write("config/dayvane.ini", "");
  Replacements replacements(Config());
  Load();
  EXPECT_LE(replacements.Count(), 5) << "options, window, view, both lists";
}

TEST_F(SettingsOnDiskTest, AFullDiskAtTheEndKeepsTheWholeOldFileAndIsToldOnce) {
  Load();
  const std::string before = testing::ReadFile(File());
  ChangeEverything();
  {
    const testing::FullDisk full;
    End();
  }
  EXPECT_EQ(testing::ReadFile(File()), before);
  EXPECT_THAT(desktop.windowing.Texts(),
              ElementsAre(StartsWith("Welcome"), "An error occurred saving the current settings."));
  EXPECT_TRUE(window.form.IsUnloaded());
}

TEST_F(SettingsOnDiskTest, WhatWasSetBeforeAnErrorAtTheEndIsStored) {
  Load();
  ChangeEverything();
  std::string stored = testing::ReadFile(File());
  const std::string view = "[Software\\Korvath\\Dayvane\\View]\nData=0\nListViews=3\n";
  stored.erase(stored.find(view), view.size());
  desktop.folder.Write("config/dayvane.ini", stored);
  End();
  EXPECT_THAT(testing::ReadFile(File()), HasSubstr("Left=1000\n"));
  EXPECT_THAT(desktop.windowing.Texts(),
              ElementsAre(StartsWith("Welcome"), "An error occurred saving the current settings."));
}

TEST_F(SettingsOnDiskTest, AcceptedOptionsReplaceTheSettingsFileOnce) {
  Load();
  FOptions* dialog = nullptr;
  window.OptionsLoaded.Connect([&](FOptions& loaded) { dialog = &loaded; });
  desktop.windowing.showModal = [&](controls::Form&) {
    for (auto& box : dialog->txtOptions) box.SetText("9");
    dialog->cmdOptions[FOptions::kOk].Press();
  };
  Replacements replacements(Config());
  window.SetOptions();
  EXPECT_EQ(replacements.Count(), 1);
  EXPECT_THAT(testing::ReadFile(File()), HasSubstr("Favorites Threshold=9\nPurge Age=9\nTimer Interval=9\n"));
}

TEST_F(SettingsOnDiskTest, ValuesThatAreMissingAreAddedInOneReplacementForEachGroup) {
  desktop.folder.Write("config/dayvane.ini",
                       "[Software\\Korvath\\Dayvane\\Options]\nPurge Age=x\n"
                       "[Software\\Korvath\\Dayvane\\Window]\nVisible=True\n");
  Replacements replacements(Config());
  Load();
  EXPECT_LE(replacements.Count(), 5);
  EXPECT_THAT(testing::ReadFile(File()), HasSubstr("Purge Age=30\nFavorites Threshold=3\nTimer Interval=60\n"));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(SettingsOnDiskTest, WithoutAFolderForItsSettingsAFirstStartWelcomesAndRunsWithTheDefaults) {
  LockSettings();
  Load();
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre(StartsWith("Welcome")));
  EXPECT_THAT(events, ElementsAre(HasSubstr("settings cannot be stored")));
  EXPECT_TRUE(window.tmrMain.Enabled());
  EXPECT_EQ(window.tmrMain.Interval(), 60000);
  EXPECT_TRUE(window.form.Visible());
}

TEST_F(SettingsOnDiskTest, SettingsThatCannotBeStoredAndDidNotChangeAreNothingToTellOfAtTheEnd) {
  LockSettings();
  Load();
  End();
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre(StartsWith("Welcome")));
}

TEST_F(SettingsOnDiskTest, SettingsThatChangedAndCannotBeStoredAreToldOnceAtTheEnd) {
  LockSettings();
  Load();
  ChangeEverything();
  End();
  EXPECT_THAT(desktop.windowing.Texts(),
              ElementsAre(StartsWith("Welcome"), "An error occurred saving the current settings."));
}

TEST_F(SettingsOnDiskTest, AReadOnlyFolderOfSettingsThatLackAValueDoesNotStopTheStart) {
  Load();
  End();
  std::string stored = testing::ReadFile(File());
  stored.erase(stored.find("ListViews=3\n"), 12);
  stored.erase(stored.find("Purge Age=30\n"), 13);
  desktop.folder.Write("config/dayvane.ini", stored);
  for (const std::string& folder : {desktop.folder.Native(), desktop.NativeFolder(), desktop.NativeRecent()})
    fs::permissions(folder, fs::perms::all);
  for (const std::string& file : {desktop.NativeFolder() + "/Daily", File()}) fs::permissions(file, fs::perms::all);
  fs::permissions(Config(), fs::perms(0555));
  desktop.windowing.messages.clear();
  FMain next(application, repository);
  {
    const testing::UnprivilegedUser nobody;
    next.Form_Load();
  }
  fs::permissions(Config(), fs::perms(0755));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
  EXPECT_THAT(events, ElementsAre(HasSubstr("settings cannot be stored")));
  EXPECT_TRUE(next.tmrMain.Enabled());
}

TEST_F(SettingsOnDiskTest, OptionsThatCannotBeStoredAreToldAndNotTaken) {
  Load();
  LockSettings();
  FOptions* dialog = nullptr;
  window.OptionsLoaded.Connect([&](FOptions& loaded) { dialog = &loaded; });
  desktop.windowing.showModal = [&](controls::Form&) {
    for (auto& box : dialog->txtOptions) box.SetText("9");
    dialog->cmdOptions[FOptions::kOk].Press();
  };
  window.SetOptions();
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre(StartsWith("Welcome"), "An error occurred setting options."));
  EXPECT_EQ(window.tmrMain.Interval(), 60000);
}

}  // namespace
}  // namespace dayvane
