// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "shell/FMain.h"
#include "tests/support/TestDesktop.h"

namespace dayvane::testing {

/// The program's main window over a temporary folder, with a threshold of two days, a purge age of 30 and a one-minute
/// timer stored as options. Load it when the disk is as the test wants it.
class MainWindow {
 public:
  MainWindow();

  void Load() { window.Form_Load(); }

  /// What the desktop's clock does when the interval is over.
  void Tick() { window.tmrMain.Fire(); }

  /// Files a shortcut to a document under a day, "2026/May/05", last written at a local time.
  void File(const std::string& day, const std::string& target, const std::string& localTime) const;

  /// Native path of something in the repository.
  std::string Daily(const std::string& path) const { return desktop.NativeFolder() + "/Daily/" + path; }

  /// Key of the tree node for a path in the repository, "2026\November\21".
  std::string Key(const std::string& path) const { return "K" + desktop.Folder() + "\\Daily\\" + path; }

  /// The tree's node for a path in the repository.
  controls::TreeNode& Node(const std::string& path) { return window.tvwMain.Node(Key(path)); }

  std::string FavoritesFile() const { return desktop.NativeFolder() + "/Favorites.dat"; }

  TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  CRepository repository{application};
  FMain window{application, repository};
};

/// The displayed text of a column, top to bottom.
std::vector<std::string> ColumnOf(const controls::ListView& list, std::size_t column);

/// The tree's texts in pre-order, each behind one blank per level.
std::vector<std::string> TextsOf(const controls::TreeView& tree);

}  // namespace dayvane::testing
