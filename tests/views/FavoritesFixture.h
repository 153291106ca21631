// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "repository/CRepository.h"
#include "tests/support/TestDesktop.h"
#include "views/CFavorites.h"

namespace dayvane::testing {

inline const std::string kRecord =
    "3,#1998-05-12 14:03:27#,\"Z:\\d\\a.lnk\",\"a.odt\",\"z:\\home\",\"OpenDocument Text\",\"writer\",0\r\n";

class FavoritesTest : public ::testing::Test {
 protected:
  FavoritesTest() {
    favorites.AppPath = desktop.Folder();
    favorites.DailyFolder = "Daily";
    favorites.SetListControls(&list, &pane);
  }

  /// Files a shortcut in the repository and returns its path.
  std::string File(const std::string& day, const std::string& target, const std::string& time,
                   const std::string& workingFolder = "") {
    const PathParts parts = SplitPath(target);
    const std::string name = "program/Daily/" + day + "/" + parts.fileName + ".lnk";
    std::filesystem::create_directories(std::filesystem::path(desktop.folder / name).parent_path());
    platform::ShellLink link;
    link.target = target;
    link.workingDirectory = workingFolder.empty() ? parts.folder : workingFolder;
    WriteShortcut(desktop.folder / name, link, time);
    std::string path = desktop.folder.Path() + "\\" + name;
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
  }

  void Count(const std::string& path) {
    CShortcut shortcut(application);
    shortcut.SetFile(path);
    favorites.ProcessShortcut(&shortcut);
  }

  void WriteData(const std::string& text) const { desktop.folder.Write("program/Favorites.dat", text); }
  std::string DataFile() const { return desktop.NativeFolder() + "/Favorites.dat"; }
  /// Native path of a data file that was kept because it was damaged.
  std::string Kept(const std::string& name) const {
    return desktop.NativeFolder() + "/Favorites.damaged " + name + ".dat";
  }
  std::string Text(std::size_t record, favorites::Field field) const {
    return favorites::TextOf(favorites.GetFavorites().at(record)[field]);
  }

  TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  CRepository repository{application};
  controls::ListView list;
  controls::PictureBox pane;
  CFavorites favorites{application};
};

}  // namespace dayvane::testing
