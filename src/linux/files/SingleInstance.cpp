// SPDX-License-Identifier: MIT
#include "linux/files/SingleInstance.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/Error.h"
#include "linux/files/SystemError.h"

namespace dayvane {

namespace {

constexpr const char* kLockName = "/dayvane.lock";

/// A folder, not a link to one, that belongs to this user and that no other user can enter.
bool IsPrivate(const std::string& folder) {
  struct stat status {};
  return folder.starts_with('/') && lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         status.st_uid == geteuid() && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

files::FileDescriptor OpenLockFile(const std::string& path) {
  files::FileDescriptor file(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
  if (!file.IsOpen()) files::Fail(path);
  return file;
}

/// Whether the open file is still the one of that path: a lock on a deleted file would keep no other instance out.
bool IsAt(const files::FileDescriptor& file, const std::string& path) {
  struct stat opened {};
  struct stat named {};
  return fstat(file.Number(), &opened) == 0 && lstat(path.c_str(), &named) == 0 && opened.st_ino == named.st_ino &&
         opened.st_dev == named.st_dev;
}

}  // namespace

std::optional<SingleInstance> SingleInstance::Acquire(const std::string& folder) {
  const std::string path = folder + kLockName;
  for (;;) {
    files::FileDescriptor file = OpenLockFile(path);
    if (flock(file.Number(), LOCK_EX | LOCK_NB) != 0) {
      if (errno == EWOULDBLOCK) return std::nullopt;
      files::Fail(path);
    }
    if (!IsAt(file, path)) continue;
    // The sticky bit asks the system not to clear the file away as unused, as the XDG specification has it.
    fchmod(file.Number(), S_ISVTX | S_IRUSR | S_IWUSR);
    return SingleInstance(std::move(file));
  }
}

std::string SingleInstance::Folder(const xdg::Environment& environment, const std::string& runtimeFolders) {
  const std::string user = std::to_string(geteuid());
  for (const std::string& folder : {environment.runtimeFolder, runtimeFolders + "/" + user})
    if (IsPrivate(folder)) return folder;
  std::string own = environment.temporary + "/dayvane-" + user;
  if (mkdir(own.c_str(), 0700) != 0 && errno != EEXIST) files::Fail(own);
  if (!IsPrivate(own)) throw Error(kPermissionDenied, "The folder is not this user's own", own);
  return own;
}

}  // namespace dayvane
