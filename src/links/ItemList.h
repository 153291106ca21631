// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "links/ByteView.h"

/// The list of shell items that leads to a link's target ([MS-SHLLINK] 2.2, LinkTargetIDList): each item names one
/// step, as in "This computer", "C:\", "docs", "Report.odt".
///
/// An item is its size (16 bits, itself included), a type and what that type demands; an item of size 0 ends the list.
/// Drives, network shares, folders and files spell a path. A file or folder has a short or ANSI name and, since
/// Windows XP, an extension block 0xBEEF0004 with its long name in UTF-16, which is the one that counts.
namespace dayvane::links {

/// The full path that a list (without the 16 bits of its size) spells. Empty when it spells none: when it is damaged,
/// has no end, or leads through something that is neither drive nor share, folder or file. A list that was cut short
/// would spell a folder above the target, so that only a list with its end counts.
std::string ItemListPath(ByteView list);

/// A list, without the size, for a path "X:\..." or "\\server\share\..." of a file or a folder; empty for any other
/// path, and for one that is too long for the 16 bits that a list's size has.
std::string ItemListFor(std::string_view path, bool isFolder = false);

}  // namespace dayvane::links
