// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "linux/recent/Moment.h"

namespace dayvane::recent {

/// One version of a file that another program writes. Inode numbers are soon used again, so the number alone is not
/// enough.
struct FileVersion {
  std::uint64_t inode = 0;
  std::int64_t size = 0;  ///< bytes
  Moment written = 0;

  friend bool operator==(const FileVersion&, const FileVersion&) = default;
};

/// The file's present version; nothing when there is no file. What is not a file, such as a named pipe, which would
/// stop a program that opens it, counts as none. Links are followed: some users keep such files elsewhere.
std::optional<FileVersion> VersionOf(const std::string& nativePath);

/// The same of a folder; another one as soon as something in it appears or goes.
std::optional<FileVersion> FolderVersionOf(const std::string& nativePath);

}  // namespace dayvane::recent
