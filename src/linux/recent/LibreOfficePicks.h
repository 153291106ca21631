// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "linux/recent/FileVersion.h"
#include "linux/recent/Source.h"

namespace dayvane::recent {

/// "libreoffice" in the user's configuration folder.
std::string DefaultLibreOfficeFolder();

/// LibreOffice's own list of recent documents (see PickListReader), the only place where it leaves them under a desktop
/// that is not GTK's. Every version that keeps a profile of its own has a folder: "4/user/registrymodifications.xcu".
///
/// The list has an order and no moments, so an entry that has come to its top since the last reading was opened when
/// the file was written. The first reading tells of nothing. Of a profile that appears later the newest entry is told:
/// a new one has no other, and one that the user copied there must not tell of all its history.
///
/// The memory is "PROFILE:ENTRY,ENTRY PROFILE:…", hashes of the folder's name and of the addresses, newest first; "-"
/// when there was no profile.
class LibreOfficePicks : public Source {
 public:
  explicit LibreOfficePicks(std::string nativeFolder);

  const std::string& Name() const override { return m_name; }
  bool IsDue() override;
  Reading Read(const std::string& memory) override;
  std::optional<Moment> BeganAt(const Opening&) override { return std::nullopt; }

 private:
  struct Profile {
    std::string name;  ///< of its folder
    std::string path;  ///< of its settings, which need not be there
    std::optional<FileVersion> read;
  };

  void FindProfiles();

  std::string m_folder;
  std::string m_name = "LibreOffice's list of recent documents";
  std::optional<FileVersion> m_listed;  ///< the folder when the profiles were looked for
  std::vector<Profile> m_profiles;
  std::optional<bool> m_wasThere;  ///< the folder, at the first look
};

}  // namespace dayvane::recent
