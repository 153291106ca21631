// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Error.h"
#include "linux/recent/RecentListFile.h"
#include "linux/recent/Source.h"

namespace dayvane::recent {

/// Lists of recent documents that programs keep for themselves, in the form of the desktop's own list: that of one
/// program, or those of all programs of a kind, each in a folder of its own.
///
/// An emptied list says nothing about what the user wishes for other programs, so it means nothing here.
class ProgramLists : public Source {
 public:
  /// Those of a kind lie at `places` below each folder of `folder`: "data/recently-used.xbel" below "~/.var/app/ID". A
  /// program that comes later is found when `folder` has changed.
  struct Kind {
    std::string folder;
    std::vector<std::string> places;
  };

  /// Paths are native; `dataHome` is the user's data folder.
  ProgramLists(std::string name, const std::string& list, std::string dataHome);
  ProgramLists(std::string name, Kind kind, std::string dataHome);

  const std::string& Name() const override { return m_name; }
  bool IsDue() override;

  /// The last opening of every document in every list that has changed. Where one cannot be read the others are told of
  /// first, and the next reading fails.
  Reading Read(const std::string& memory) override;

  std::optional<Moment> BeganAt(const Opening& /*use*/) override { return std::nullopt; }

 private:
  using FolderTime = std::optional<std::filesystem::file_time_type>;

  void FindLists();
  void AddList(const std::string& path);
  void ReadList(RecentListFile& list, std::vector<Opening>& openings) const;

  std::string m_name;
  Kind m_kind;  ///< without a folder for the list of one program
  std::string m_dataHome;
  FolderTime m_found;                                    ///< when the folder had changed last as lists were looked for
  std::vector<std::unique_ptr<RecentListFile>> m_lists;  ///< that are there or may come
  std::optional<Error> m_failure;                        ///< that no reading has told of yet
};

/// Those that are known: of GNOME's text editor, of programs from Flatpak, and of snaps.
std::vector<std::unique_ptr<Source>> KnownProgramLists(const std::string& home, const std::string& dataHome);

}  // namespace dayvane::recent
