// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <utility>
#include <vector>

#include "linux/files/FileDescriptor.h"
#include "platform/FileSystem.h"

/// The disk by native paths, byte for byte. Links are not followed; every failure is an Error.
namespace dayvane::files {

/// Where something lies, and the path that errors are about: the native one, unless the program has its own for it.
struct Place {
  Place(std::string nativePath) : native(std::move(nativePath)), named(native) {}
  Place(std::string nativePath, std::string namedPath) : native(std::move(nativePath)), named(std::move(namedPath)) {}

  std::string native;
  std::string named;
};

/// What lies there, or nothing when nothing does or the user may not look there.
std::optional<platform::FileStatus> StatusOf(const Place& place);

/// Everything in the folder but "." and "..", with native names, in no order. Empty when there is no such folder.
std::vector<platform::DirectoryEntry> ListFolder(const Place& folder);

/// Opens a file and nothing else. Not blocking: a named pipe in place of a file must not stop the program.
FileDescriptor OpenFile(const Place& place, int flags, struct stat& status);

/// The first `limit` bytes of a file.
platform::FileContents ReadFile(const Place& place, std::size_t limit);

/// The same of an open file with this status. Errors are about `named`.
std::string ReadOpenFile(int file, const struct stat& status, std::size_t limit, const std::string& named);

/// Puts a whole file in place and has it on the disk when this returns.
void ReplaceFile(const Place& place, std::string_view bytes);

/// Puts a whole file in place with the given last-written time (nanoseconds since 1970, UTC).
void ReplaceWithTime(const std::string& nativePath, std::string_view bytes, std::int64_t writtenNanoseconds);

void DeleteFile(const Place& place);

/// The moment a file was last written, with the user's local time beside it.
platform::FileMoment MomentOf(const struct stat& status);

/// The local time of a moment. Times outside the years 1601 to 9999 are moved to the nearer end.
std::chrono::local_seconds LocalTime(std::int64_t secondsSince1970);

}  // namespace dayvane::files
