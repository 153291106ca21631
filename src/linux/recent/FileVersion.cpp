// SPDX-License-Identifier: MIT
#include "linux/recent/FileVersion.h"

#include <sys/stat.h>

#include "linux/files/NativeFile.h"

namespace dayvane::recent {

namespace {

std::optional<FileVersion> VersionOfKind(const std::string& nativePath, mode_t kind) {
  struct stat status {};
  if (stat(nativePath.c_str(), &status) != 0 || (status.st_mode & S_IFMT) != kind) return std::nullopt;
  return FileVersion{status.st_ino, status.st_size, files::MomentOf(status).nanoseconds};
}

}  // namespace

std::optional<FileVersion> VersionOf(const std::string& nativePath) {
  return VersionOfKind(nativePath, S_IFREG);
}

std::optional<FileVersion> FolderVersionOf(const std::string& nativePath) {
  return VersionOfKind(nativePath, S_IFDIR);
}

}  // namespace dayvane::recent
