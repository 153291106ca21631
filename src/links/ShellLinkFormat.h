// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Shell.h"

/// Shell links as bytes: the format of Windows' shortcuts, [MS-SHLLINK] "Shell Link (.LNK) Binary File Format".
///
/// A link is a header of 76 bytes, then whichever of these its flags announce: the item list (2.2) and the link info
/// (2.3), which both lead to the target; up to five texts (2.4); last, extra blocks (2.5) with their own signatures.
/// The header alone decides whether bytes are a link. Everything after it may be missing, cut short or wrong: parts
/// that are whole are used, parts that are not are treated as absent, unknown parts are skipped.
namespace dayvane::links {

/// Reads a link; nothing when the bytes are not a link. Never touches the disk; works in time and memory that grow no
/// faster than the number of bytes.
///
/// The target is the first of these that is there: the Unicode path of the link info; the path that the item list
/// spells (before the next, which often is in a code page that cannot hold the name); the ANSI path of the link info;
/// the environment-variable block, with its variables as they stand; the relative path as it stands. The icon's file is
/// that of the texts, else that of the icon environment block. Texts end at their first null.
std::optional<platform::ShellLink> ParseShellLink(std::string_view bytes);

/// The bytes of a link that this and other readers of the format accept. The same link always gives the same bytes:
/// they carry no time, and nothing about the target but its path and whether it is a folder. Texts end at their first
/// null, and bytes in them that are not UTF-8 become U+FFFD. An Error for a text beside the target of more than 65,535
/// UTF-16 units, the most that fits.
std::string WriteShellLink(const platform::ShellLink& link);

}  // namespace dayvane::links
