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

}  // namespace

ProgramFolders FindProgramFolders(const std::string& executable, const xdg::Environment& environment) {
  const fs::path folder = fs::path(executable).parent_path();
  const fs::path shared = folder.parent_path() / "share" / "dayvane";
  std::error_code ignored;
  if (folder.filename() != "bin") return {folder.string(), folder.string(), {}};
  if (fs::is_directory(shared, ignored)) return {xdg::DataFolder(environment) + "/dayvane", shared.string(), {}};
  return {folder.string(), folder.string(), shared.string()};
}

void MakeDataFolder(const ProgramFolders& folders) {
  xdg::MakeFolder(folders.data);
  if (IsWritable(folders.data)) return;
  if (folders.missing.empty()) files::Fail(folders.data);
  throw Error(kPathNotFound, "Dayvane is not completely installed. Its folder is missing", folders.missing);
}

}  // namespace dayvane
