// SPDX-License-Identifier: MIT
#include "windows/files/NativeFile.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/Error.h"
#include "windows/files/NativePath.h"
#include "windows/files/SystemError.h"

namespace dayvane::files {

namespace {

using platform::EntryKind;

bool IsHeldByAnother(std::uint32_t systemError) {
  return systemError == ERROR_SHARING_VIOLATION || systemError == ERROR_LOCK_VIOLATION;
}

/// What a call moves at most at once.
DWORD Portion(std::size_t size) {
  return static_cast<DWORD>(std::min<std::size_t>(size, 1U << 30));
}

bool RemoveOnce(const std::wstring& native, DWORD attributes) {
  // A link to a folder is removed as a folder is; what it leads to stays.
  const bool isFolderLink =
      (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return (isFolderLink ? RemoveDirectoryW(native.c_str()) : DeleteFileW(native.c_str())) != 0;
}

/// The reparse tag of what is open; 0 where there is none.
std::uint32_t ReparseTagOf(const FileHandle& file, DWORD attributes) {
  FILE_ATTRIBUTE_TAG_INFO tag{};
  const bool isTagged = (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
                        GetFileInformationByHandleEx(file.Get(), FileAttributeTagInfo, &tag, sizeof tag) != 0;
  return isTagged ? tag.ReparseTag : 0;
}

FileHandle OpenWith(const Place& place, std::uint32_t access, std::uint32_t disposition, DWORD flags) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  FileHandle file(INVALID_HANDLE_VALUE);
  const std::uint32_t systemError = Persist([&] {
    file = FileHandle(CreateFileW(place.native.c_str(), access, kShareAll, nullptr, disposition, flags, nullptr));
    return file.IsOpen();
  });
  const bool isFolder = systemError == ERROR_ACCESS_DENIED && IsFolder(place.native);
  if (systemError != ERROR_SUCCESS && !isFolder) Fail(systemError, place.named);
  if (isFolder || GetFileType(file.Get()) != FILE_TYPE_DISK) throw Error(kPathFileAccess, "Not a file", place.named);
  return file;
}

}  // namespace

Place PlaceOf(const std::string& path) {
  auto native = ToNative(path);
  if (!native) throw Error(kPathNotFound, "Path not found", path);
  return {std::move(*native), path};
}

std::uint32_t Persist(const std::function<bool()>& attempt) {
  constexpr int kAttempts = 8;
  constexpr DWORD kFirstPause = 2;  // milliseconds, twice as long each time: a quarter of a second in all
  DWORD pause = kFirstPause;
  for (int left = kAttempts;; pause *= 2) {
    if (attempt()) return ERROR_SUCCESS;
    const DWORD systemError = GetLastError();
    if (!IsHeldByAnother(systemError) || --left == 0) return systemError;
    Sleep(pause);
  }
}

// Not by GetFileInformationByHandle, which also asks for the disk that the file lies on. That takes longer than the
// rest.
OpenedFile OpenFile(const Place& place, std::uint32_t access, std::uint32_t disposition) {
  // As what it is, so that a link is not followed.
  FileHandle file = OpenWith(place, access, disposition, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT);
  FILE_BASIC_INFO information{};
  if (GetFileInformationByHandleEx(file.Get(), FileBasicInfo, &information, sizeof information) == 0) Fail(place.named);
  const std::uint32_t tag = ReparseTagOf(file, information.FileAttributes);
  if (KindOf(information.FileAttributes, tag) == EntryKind::Link)
    throw Error(kPathFileAccess, "Not a file", place.named);
  // A file that is kept in a special way, such as in a cloud, has its bytes only as what it seems to be.
  if (tag != 0) file = OpenWith(place, access, disposition, FILE_ATTRIBUTE_NORMAL);
  const LARGE_INTEGER written = information.LastWriteTime;
  return {std::move(file), {written.LowPart, static_cast<DWORD>(written.HighPart)}};
}

FILE_STANDARD_INFO SizeAndNames(const FileHandle& file, const std::string& path) {
  FILE_STANDARD_INFO information{};
  if (GetFileInformationByHandleEx(file.Get(), FileStandardInfo, &information, sizeof information) == 0) Fail(path);
  return information;
}

void WriteAll(const FileHandle& file, std::string_view bytes, const std::string& path) {
  while (!bytes.empty()) {
    DWORD written = 0;
    if (WriteFile(file.Get(), bytes.data(), Portion(bytes.size()), &written, nullptr) == 0) Fail(path);
    bytes.remove_prefix(written);
  }
}

std::size_t ReadUpTo(const FileHandle& file, char* buffer, std::size_t size, const std::string& path) {
  std::size_t used = 0;
  while (used < size) {
    DWORD count = 0;
    if (ReadFile(file.Get(), buffer + used, Portion(size - used), &count, nullptr) == 0) Fail(path);
    if (count == 0) break;
    used += count;
  }
  return used;
}

std::uint32_t Remove(const std::wstring& native) {
  return Persist([&] {
    const DWORD attributes = GetFileAttributesW(native.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return false;
    if (RemoveOnce(native, attributes)) return true;
    if (GetLastError() != ERROR_ACCESS_DENIED || (attributes & FILE_ATTRIBUTE_READONLY) == 0) return false;
    return SetFileAttributesW(native.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY}) != 0 &&
           RemoveOnce(native, attributes);
  });
}

EntryKind KindOf(std::uint32_t attributes, std::uint32_t reparseTag) {
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && IsReparseTagNameSurrogate(reparseTag)) return EntryKind::Link;
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return EntryKind::Folder;
  return (attributes & FILE_ATTRIBUTE_DEVICE) != 0 ? EntryKind::Other : EntryKind::File;
}

std::uint32_t ReparseTagOf(const std::wstring& native) {
  WIN32_FIND_DATAW found{};
  const SearchHandle search(FindFirstFileW(native.c_str(), &found));
  const bool isTagged = search.IsOpen() && (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  return isTagged ? found.dwReserved0 : 0;
}

bool IsFolder(const std::wstring& native) {
  const DWORD attributes = GetFileAttributesW(native.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return false;
  const bool isTagged = (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  return KindOf(attributes, isTagged ? ReparseTagOf(native) : 0) == EntryKind::Folder;
}

}  // namespace dayvane::files
