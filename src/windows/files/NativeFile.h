// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"
#include "windows/files/Handle.h"

/// Open files and entries of folders, by native paths. Every failure is an Error.
namespace dayvane::files {

/// Where something lies, and the path that errors are about.
struct Place {
  std::wstring native;
  std::string named;
};

/// The place of a path of the program; an Error where it has no native form.
Place PlaceOf(const std::string& path);

/// Does something until it succeeds or fails for good. A virus scanner or indexer holds a file that was just written
/// for some milliseconds, and all that can be done is to try again. Returns the system's error, 0 for success.
std::uint32_t Persist(const std::function<bool()>& attempt);

/// A file that was opened, with its moment.
struct OpenedFile {
  FileHandle handle;
  FILETIME written;
};

/// Opens a file and nothing else; a link in its place is not followed.
OpenedFile OpenFile(const Place& place, std::uint32_t access, std::uint32_t disposition);

/// The size of an open file, and how many names it has.
FILE_STANDARD_INFO SizeAndNames(const FileHandle& file, const std::string& path);

void WriteAll(const FileHandle& file, std::string_view bytes, const std::string& path);

/// Reads up to `size` bytes at the file's position; fewer only at its end.
std::size_t ReadUpTo(const FileHandle& file, char* buffer, std::size_t size, const std::string& path);

/// Deletes a file or a link itself, also one that must not be written. Returns the system's error, 0 for success.
std::uint32_t Remove(const std::wstring& native);

/// What the attributes say, with the reparse tag where there is one. A link is what stands for something elsewhere;
/// other tags are of files that their owner keeps in a special way, such as compressed or in a cloud.
platform::EntryKind KindOf(std::uint32_t attributes, std::uint32_t reparseTag);

/// The reparse tag of what lies there; 0 where there is none.
std::uint32_t ReparseTagOf(const std::wstring& native);

/// Whether there is a folder of this name, and no link to one.
bool IsFolder(const std::wstring& native);

}  // namespace dayvane::files
