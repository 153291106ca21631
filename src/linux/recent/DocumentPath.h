#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace dayvane::recent {

/// The native path of the document at an address of the recent list, byte for byte; nothing when the address is none
/// of a file of this machine (another scheme or host, a fragment, a damaged escape, the root folder).
///
/// Programs spell one path in several ways ("file:/x", "FILE:///x", "%5B" or "[", a slash at the end): all of them give
/// the same path here, so that it can stand for the document. The disk is never asked.
std::optional<std::string> DocumentPath(const std::string& href);

/// Whether the path lies in the user's trash or in the trash of a removable disk.
/// https://specifications.freedesktop.org/trash-spec/trashspec-latest.html
bool LiesInTrash(std::string_view path, std::string_view dataHome);

}  // namespace dayvane::recent
