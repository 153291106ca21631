// SPDX-License-Identifier: MIT

// The journal of what "Favorites.dat" does not count yet, as kills and broken disks leave it.

#include <algorithm>
#include <string>

#include "linux/LinuxFileSystem.h"
#include "tests/fuzz/Fuzzing.h"
#include "views/FavoritesJournal.h"

namespace dayvane::fuzzing {

namespace {

using Paths = std::vector<std::string>;

/// A disk with one file, in memory.
class OneFile : public files::LinuxFileSystem {
 public:
  std::optional<platform::FileStatus> Status(const std::string&) override {
    return platform::FileStatus{platform::EntryKind::File, text.size(), {}};
  }
  platform::FileContents Read(const std::string&, std::size_t limit) override { return {text.substr(0, limit), {}}; }
  void Append(const std::string&, std::string_view added) override { text += added; }
  void Delete(const std::string&) override { text.clear(); }

  std::string text;
};

bool AreSound(const Paths& paths, std::size_t room) {
  std::size_t length = 0;
  for (const std::string& path : paths) {
    if (path.empty() || path.find('\n') != std::string::npos) return false;
    length += path.size();
  }
  return length <= room;
}

}  // namespace

void Try(std::string_view bytes) {
  OneFile disk;
  const favorites::FavoritesJournal journal(disk, "Z:\\Favorites.pending");
  disk.text = std::string("dayvane-pending 1 5-7\n").append(bytes);
  const Paths paths = journal.Read("5-7");
  Require(AreSound(paths, bytes.size()), "every line of a journal is at most one path");
  Require(bytes.find(" 5-8\n") != std::string_view::npos || journal.Read("5-8").empty(),
          "a journal says nothing of another version of the data file");
  if (paths.empty()) return;

  journal.End();
  journal.Begin("5-7", {paths.front()});
  for (std::size_t i = 1; i < paths.size(); ++i) journal.Add(paths[i]);
  Require(journal.Read("5-7") == paths, "a journal that is written is read back");

  // Cut where the input's last byte says.
  disk.text.resize(disk.text.size() * static_cast<unsigned char>(bytes.back()) / 256);
  const Paths cut = journal.Read("5-7");
  Require(cut.size() <= paths.size() && std::equal(cut.begin(), cut.end(), paths.begin()),
          "a journal that is cut short tells what stands before the cut");
}

}  // namespace dayvane::fuzzing
