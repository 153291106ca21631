// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/FileSystem.h"

namespace dayvane {

/// Which entries a listing gives. Hidden and system entries and symbolic links are never among them.
enum class DirKinds { Files, FilesAndFolders };

/// The entries of a folder whose names fit the last part of the pattern ("…\Recent\*.lnk"), in the order of their
/// names. Empty when there is no such folder; an Error when it cannot be read.
std::vector<platform::DirectoryEntry> Dir(platform::FileSystem& files, const std::string& pattern, DirKinds kinds);

/// Whether a folder, not a link to one, lies at the path.
bool FolderExists(platform::FileSystem& files, const std::string& path);

/// Whether anything but a folder lies at the path.
bool FileExists(platform::FileSystem& files, const std::string& path);

}  // namespace dayvane
