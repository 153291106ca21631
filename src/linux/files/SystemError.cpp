// SPDX-License-Identifier: MIT
#include "linux/files/SystemError.h"

#include <cerrno>
#include <cstring>

#include "base/Error.h"

namespace dayvane::files {

namespace {

int NumberOf(int systemError) {
  switch (systemError) {
    case ENOENT:
      return kFileNotFound;
    case ENOTDIR:
      return kPathNotFound;
    case EEXIST:
      return kFileAlreadyExists;
    case EACCES:
    case EPERM:
    case EROFS:
      return kPermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return kDiskFull;
    case ENAMETOOLONG:
    case EINVAL:
      return kBadFileName;
    case EISDIR:
    case ELOOP:
    case ENOTEMPTY:
      return kPathFileAccess;
    default:
      return kDeviceIoError;
  }
}

}  // namespace

void Fail(const std::string& path) {
  const int systemError = errno;
  throw Error(NumberOf(systemError), std::strerror(systemError), path);
}

}  // namespace dayvane::files
