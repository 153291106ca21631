// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Shell.h"

/// What only the shell itself knows of shell links.
namespace dayvane::launch {

/// The full path that a link's list of items leads to in the shell, by the bytes of its file: one that begins at a
/// folder of the shell's, such as the user's desktop, spells no path by itself. Nothing is looked for on a disk. Empty
/// where there is no such list, or the shell has no path for it.
std::string PathByShell(std::string_view bytes);

/// The bytes of a link as the shell writes it; nothing where it refuses any of it, or there is no shell. It looks
/// whether the target is there.
std::optional<std::string> WriteByShell(const platform::ShellLink& link);

}  // namespace dayvane::launch
