// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "links/ByteView.h"

/// Where a link's target was when the link was made ([MS-SHLLINK] 2.3, LinkInfo): a base, which is a local path or the
/// name of a network share, and a suffix that goes on from either. Each text is there in ANSI; in newer links, which
/// tell by the size of the header, in UTF-16 as well.
///
/// A path counts only when all of it can be read: a base whose suffix is lost would be a folder above the target.
namespace dayvane::links {

/// The path by its texts in UTF-16, or empty.
std::string UnicodePath(ByteView linkInfo);

/// The path by its ANSI texts, or empty. A share without a name is known by the drive letter it had.
std::string AnsiPath(ByteView linkInfo);

/// The structure, its size included, for a target in any form: "\\server\share\..." as a share and a suffix, all else
/// as a local path.
std::string LinkInfoFor(std::string_view target);

}  // namespace dayvane::links
