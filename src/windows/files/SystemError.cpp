// SPDX-License-Identifier: MIT
#include "windows/files/SystemError.h"

#include <string_view>

#include "base/Error.h"
#include "windows/files/WideText.h"
#include "windows/files/Win32.h"

namespace dayvane::files {

namespace {

constexpr std::uint32_t kDiskQuotaExceeded = 1295;  // ERROR_DISK_QUOTA_EXCEEDED, which not all headers have

int NumberOf(std::uint32_t systemError) {
  switch (systemError) {
    case ERROR_FILE_NOT_FOUND:
      return kFileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
      return kPathNotFound;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return kFileAlreadyExists;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
      return kPermissionDenied;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case kDiskQuotaExceeded:
    case ERROR_FILE_TOO_LARGE:
      return kDiskFull;
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
      return kBadFileName;
    case ERROR_DIRECTORY:
    case ERROR_DIR_NOT_EMPTY:
    case ERROR_CANT_RESOLVE_FILENAME:
      return kPathFileAccess;
    default:
      return kDeviceIoError;
  }
}

/// In the user's language, on one line and without the full stop and blanks at its end.
std::string WordsOf(std::uint32_t systemError) {
  wchar_t buffer[512];
  constexpr DWORD kFlags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
  const DWORD length = FormatMessageW(kFlags, nullptr, systemError, 0, buffer, std::size(buffer), nullptr);
  std::wstring_view words(buffer, length);
  while (!words.empty() && (words.back() == L' ' || words.back() == L'.')) words.remove_suffix(1);
  const auto text = FromWide(words);
  return text && !text->empty() ? *text : "System error " + std::to_string(systemError);
}

}  // namespace

void Fail(const std::string& path) {
  Fail(GetLastError(), path);
}

void Fail(std::uint32_t systemError, const std::string& path) {
  throw Error(NumberOf(systemError), WordsOf(systemError), path);
}

}  // namespace dayvane::files
