// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace dayvane::recent {

/// The native path, byte for byte, that an address of the recent list means; nothing when the address does not name a
/// file of this machine (another scheme or host, a fragment, a damaged escape, the root folder).
///
/// Programs spell one path in several ways ("file:/x", "FILE:///x", "%5B" or "[", a slash at the end). All of them give
/// the same path here, so a path identifies its document. The disk is not touched.
std::optional<std::string> DocumentPath(const std::string& href);

/// The same for a native path as a program wrote it; nothing when it is not absolute.
std::optional<std::string> SimplePath(std::string_view nativePath);

/// Whether the path lies in the user's trash or in the trash of a removable disk.
/// https://specifications.freedesktop.org/trash-spec/trashspec-latest.html
bool LiesInTrash(std::string_view path, std::string_view dataHome);

}  // namespace dayvane::recent
