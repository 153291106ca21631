// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// The user's real Recent folder, filled as the shell fills it when a program opens a document. A test cannot have
/// other programs do that: not every implementation of the shell's call for it does what the real one does.
namespace dayvane::testing {

/// Path of the Recent folder, without a trailing "\".
std::string RecentFolder();

/// Puts a document, by its full path, into the Recent folder, or its shortcut to the front: last written now, or at a
/// moment in seconds since 1970. The document need not be there. A second document of the same name has "(2)" in its
/// shortcut's. Returns the path of the shortcut, which stays until somebody deletes it.
std::string AddRecentDocument(const std::string& document, std::optional<std::int64_t> written = {});

/// Writes a shortcut to a document with the shell's own means, replacing what was there.
void SaveShellsLink(const std::string& document, const std::string& shortcut);

}  // namespace dayvane::testing
