// SPDX-License-Identifier: MIT
#include "windows/WindowsFileSystem.h"

#include <algorithm>
#include <utility>

#include "base/Error.h"
#include "windows/files/Link.h"
#include "windows/files/NativeFile.h"
#include "windows/files/NativePath.h"
#include "windows/files/SystemError.h"
#include "windows/files/UnfinishedFile.h"
#include "windows/files/WideText.h"

namespace dayvane::files {

namespace {

using platform::DirectoryEntry;
using platform::EntryKind;
using platform::FileContents;
using platform::FileMoment;
using platform::FileStatus;

std::uint64_t Joined(DWORD high, DWORD low) {
  return (std::uint64_t{high} << 32U) | low;
}

/// Whether the failure to look at a path says that nothing lies there that the program could use. A disk that does not
/// answer says no such thing: what is filed would be filed and counted again.
bool TellsOfNothing(DWORD systemError) {
  constexpr DWORD kAbsences[] = {ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND,       ERROR_ACCESS_DENIED,
                                 ERROR_INVALID_NAME,   ERROR_BAD_PATHNAME,         ERROR_INVALID_DRIVE,
                                 ERROR_DIRECTORY,      ERROR_FILENAME_EXCED_RANGE, ERROR_CANT_RESOLVE_FILENAME,
                                 ERROR_BAD_NET_NAME,   ERROR_CANT_ACCESS_FILE};
  return std::ranges::find(kAbsences, systemError) != std::end(kAbsences);
}

bool IsDots(std::wstring_view name) {
  return name == L"." || name == L"..";
}

/// Nothing for a name that has no form in the program's paths: it cannot be one that the program wrote.
std::optional<DirectoryEntry> EntryOf(const WIN32_FIND_DATAW& found) {
  auto name = FromWide(found.cFileName);
  if (!name || IsDots(found.cFileName)) return std::nullopt;
  const bool hidden = (found.dwFileAttributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
  const bool unfinished = found.cFileName == std::wstring_view(kUnfinishedName);
  return DirectoryEntry{std::move(*name), KindOf(found.dwFileAttributes, found.dwReserved0), hidden || unfinished};
}

/// The bytes of an open file, which may be longer or shorter by now than it was told to be.
std::string Contents(const FileHandle& file, std::uint64_t expected, std::size_t limit, const std::string& path) {
  std::string bytes;
  std::size_t used = 0;
  std::size_t capacity = static_cast<std::size_t>(std::min<std::uint64_t>(limit, expected + 1));
  while (used < limit) {
    bytes.resize(capacity);
    used += ReadUpTo(file, bytes.data() + used, capacity - used, path);
    if (used < capacity) break;
    capacity = capacity > limit / 2 ? limit : capacity * 2;
  }
  bytes.resize(used);
  return bytes;
}

/// Gives a file the present time if it holds exactly these bytes and has no other name, by which it may be a copy that
/// somebody keeps. Returns whether it does.
bool TouchIfSame(const Place& place, std::string_view bytes) {
  if (GetFileAttributesW(place.native.c_str()) == INVALID_FILE_ATTRIBUTES) return false;
  try {
    const FileHandle file = OpenFile(place, GENERIC_READ | FILE_WRITE_ATTRIBUTES, OPEN_EXISTING).handle;
    const FILE_STANDARD_INFO told = SizeAndNames(file, place.named);
    if (told.NumberOfLinks != 1 || static_cast<std::uint64_t>(told.EndOfFile.QuadPart) != bytes.size()) return false;
    if (Contents(file, bytes.size(), bytes.size(), place.named) != bytes) return false;
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    return SetFileTime(file.Get(), nullptr, nullptr, &now) != 0;
  } catch (const Error&) {
    return false;  // It is replaced then, which tells better what is wrong.
  }
}

bool RemoveEmpty(const std::wstring& native) {
  if (RemoveDirectoryW(native.c_str()) != 0) return true;
  const DWORD systemError = GetLastError();
  const DWORD attributes = GetFileAttributesW(native.c_str());
  const bool isReadOnly = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
  if (systemError != ERROR_ACCESS_DENIED || !isReadOnly) {
    SetLastError(systemError);
    return false;
  }
  return SetFileAttributesW(native.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY}) != 0 &&
         RemoveDirectoryW(native.c_str()) != 0;
}

}  // namespace

FileMoment WindowsFileSystem::MomentOf(const FILETIME& written) const {
  return {NanosecondsOf(written), m_localTime(SecondsOf(written))};
}

std::optional<FileStatus> WindowsFileSystem::Status(const std::string& path) {
  const auto native = ToNative(path);
  if (!native) return std::nullopt;
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (GetFileAttributesExW(native->c_str(), GetFileExInfoStandard, &data) == 0) {
    const DWORD systemError = GetLastError();
    if (!TellsOfNothing(systemError)) Fail(systemError, path);
    return std::nullopt;
  }
  const bool isTagged = (data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  const EntryKind kind = KindOf(data.dwFileAttributes, isTagged ? ReparseTagOf(*native) : 0);
  return FileStatus{kind, Joined(data.nFileSizeHigh, data.nFileSizeLow), MomentOf(data.ftLastWriteTime)};
}

std::string WindowsFileSystem::Resolve(const std::string& path) {
  constexpr int kMostLinks = 63;  // as many as the system itself follows
  std::wstring native = PlaceOf(path).native;
  int links = 0;
  for (auto target = LinkTarget(native); target; target = LinkTarget(native)) {
    if (++links > kMostLinks) throw Error(kPathFileAccess, "Too many levels of symbolic links", path);
    native = *target;
  }
  if (links == 0) return path;
  const auto resolved = FromNative(native);
  if (!resolved) throw Error(kBadFileName, "A symbolic link leads to a name that cannot be used", path);
  return *resolved;
}

std::vector<DirectoryEntry> WindowsFileSystem::List(const std::string& folder) {
  std::vector<DirectoryEntry> entries;
  const auto native = ToNative(folder);
  // The folder itself, not one that a link of this name leads to: what is listed may be deleted next.
  if (!native || !IsFolder(*native)) return entries;
  const std::wstring pattern = native->ends_with(L'\\') ? *native + L"*" : *native + L"\\*";
  WIN32_FIND_DATAW found{};
  const SearchHandle search(FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found, FindExSearchNameMatch, nullptr,
                                             FIND_FIRST_EX_LARGE_FETCH));
  if (!search.IsOpen()) {
    const DWORD systemError = GetLastError();
    if (systemError == ERROR_ACCESS_DENIED || !TellsOfNothing(systemError)) Fail(systemError, folder);
    return entries;
  }
  do {
    if (auto entry = EntryOf(found)) entries.push_back(std::move(*entry));
  } while (FindNextFileW(search.Get(), &found) != 0);
  if (GetLastError() != ERROR_NO_MORE_FILES) Fail(folder);
  // Disks differ in the order of their listings, and users see years in it.
  std::ranges::sort(entries, {}, &DirectoryEntry::name);
  return entries;
}

FileContents WindowsFileSystem::Read(const std::string& path, std::size_t limit) {
  const OpenedFile file = OpenFile(PlaceOf(path), GENERIC_READ, OPEN_EXISTING);
  const auto size = static_cast<std::uint64_t>(SizeAndNames(file.handle, path).EndOfFile.QuadPart);
  return {Contents(file.handle, size, limit, path), MomentOf(file.written)};
}

void WindowsFileSystem::Replace(const std::string& path, std::string_view bytes) {
  UnfinishedFile file(PlaceOf(path));
  file.Write(bytes);
  file.FlushToDisk();
  file.Finish();
}

void WindowsFileSystem::ReplaceUnflushed(const std::string& path, std::string_view bytes) {
  Place place = PlaceOf(path);
  if (TouchIfSame(place, bytes)) return;
  UnfinishedFile file(std::move(place));
  file.Write(bytes);
  file.Finish();
}

void WindowsFileSystem::Copy(const std::string& source, const std::string& destination) {
  const OpenedFile from = OpenFile(PlaceOf(source), GENERIC_READ, OPEN_EXISTING);
  UnfinishedFile to(PlaceOf(destination));
  char buffer[65536];
  for (std::size_t count = sizeof buffer; count == sizeof buffer;) {
    count = ReadUpTo(from.handle, buffer, sizeof buffer, source);
    to.Write({buffer, count});
  }
  to.SetWritten(from.written);
  to.Finish();
}

void WindowsFileSystem::Append(const std::string& path, std::string_view text) {
  constexpr DWORD kAppend = FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE;
  const FileHandle file = OpenFile(PlaceOf(path), kAppend, OPEN_ALWAYS).handle;
  WriteAll(file, text, path);
}

void WindowsFileSystem::CreateFolder(const std::string& path) {
  if (CreateDirectoryW(PlaceOf(path).native.c_str(), nullptr) == 0) Fail(path);
}

void WindowsFileSystem::Rename(const std::string& path, const std::string& newPath) {
  const std::wstring from = PlaceOf(path).native;
  const std::wstring to = PlaceOf(newPath).native;
  const auto systemError = Persist([&] { return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH) != 0; });
  const bool isTaken = systemError == ERROR_ALREADY_EXISTS || systemError == ERROR_FILE_EXISTS;
  if (systemError != ERROR_SUCCESS) Fail(systemError, isTaken ? newPath : path);
}

void WindowsFileSystem::Delete(const std::string& path) {
  const auto systemError = Remove(PlaceOf(path).native);
  if (systemError != ERROR_SUCCESS) Fail(systemError, path);
}

void WindowsFileSystem::RemoveFolder(const std::string& path) {
  const std::wstring native = PlaceOf(path).native;
  // The system would remove a link to a folder as well.
  if (ReparseTagOf(native) != 0 && !IsFolder(native)) Fail(ERROR_DIRECTORY, path);
  auto systemError = Persist([&] { return RemoveEmpty(native); });
  if (systemError == ERROR_DIR_NOT_EMPTY) {
    // What a kill may have left is the program's own. Whether it was there does not matter: the second attempt tells.
    Remove(native + L"\\" + kUnfinishedName);
    systemError = Persist([&] { return RemoveEmpty(native); });
  }
  if (systemError != ERROR_SUCCESS) Fail(systemError, path);
}

}  // namespace dayvane::files
