#include "linux/ProgramFolder.h"

#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

#include "linux/files/SystemError.h"

namespace dayvane {

namespace fs = std::filesystem;

ProgramFolders FindProgramFolders(const std::string& executable, const xdg::Environment& environment) {
  const fs::path folder = fs::path(executable).parent_path();
  const fs::path shared = folder.parent_path() / "share" / "dayvane";
  std::error_code ignored;
  if (folder.filename() == "bin" && fs::is_directory(shared, ignored))
    return {xdg::DataFolder(environment) + "/dayvane", shared.string()};
  return {folder.string(), folder.string()};
}

void MakeDataFolder(const std::string& folder) {
  xdg::MakeFolder(folder);
  if (faccessat(AT_FDCWD, folder.c_str(), R_OK | W_OK | X_OK, AT_EACCESS) != 0) files::Fail(folder);
}

}  // namespace dayvane
