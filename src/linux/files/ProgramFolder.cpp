// SPDX-License-Identifier: MIT
#include "linux/files/ProgramFolder.h"

#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

#include "base/Error.h"
#include "linux/files/SystemError.h"

namespace dayvane {

namespace fs = std::filesystem;

namespace {

bool IsWritable(const std::string& folder) {
  return faccessat(AT_FDCWD, folder.c_str(), R_OK | W_OK | X_OK, AT_EACCESS) == 0;
}

bool HasHelp(const fs::path& folder) {
  std::error_code ignored;
  return fs::is_regular_file(folder / "Dayvane.hlp", ignored);
}

bool HasRecord(const fs::path& folder) {
  std::error_code ignored;
  return fs::is_directory(folder / "Daily", ignored);
}

}  // namespace

ProgramFolders FindProgramFolders(const std::string& executable, const std::string& configured,
                                  const xdg::Environment& environment) {
  const fs::path folder = fs::path(executable).parent_path();
  const fs::path shared = folder.parent_path() / "share" / "dayvane";
  const bool isInBin = folder.filename() == "bin";
  std::error_code ignored;
  const auto installedWith = [&](const std::string& resources) {
    return ProgramFolders{xdg::DataFolder(environment) + "/dayvane", resources, {}};
  };
  if (isInBin && fs::is_directory(shared, ignored)) return installedWith(shared.string());
  const bool isPortable = HasHelp(folder) || HasRecord(folder);
  if (!isPortable && HasHelp(configured)) return installedWith(configured);
  return {folder.string(), folder.string(), isInBin ? shared.string() : std::string()};
}

void MakeDataFolder(const ProgramFolders& folders) {
  xdg::MakeFolder(folders.data);
  if (IsWritable(folders.data)) return;
  if (folders.missing.empty()) files::Fail(folders.data);
  throw Error(kPathNotFound, "Dayvane is not completely installed. Its folder is missing", folders.missing);
}

}  // namespace dayvane
