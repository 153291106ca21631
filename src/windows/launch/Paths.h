// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// What can be told of a path of the program without looking at what lies there.
namespace dayvane::launch {

/// Whether a text is a full path that something can have. Names that were lost in a code page have "?" in them.
bool IsPath(const std::string& text);

/// Whether a path lies on a disk of this computer that is there: what lies elsewhere may make whoever asks for it wait,
/// or ask the user for a disk.
bool IsAtHand(const std::string& path);

/// The path as a person writes it: "C:\a" for "\\?\C:\a". Any other text stays as it is.
std::string PlainPath(const std::string& path);

}  // namespace dayvane::launch
