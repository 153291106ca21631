// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Where a path of the program becomes a path of Linux and back.
///
/// Drive "Z:" is the root of the file system, the convention of Windows programs on Linux. Two characters that a Linux
/// name may hold have no place in the program's paths: "\" separates parts, and the data file quotes with the double
/// quotation mark. They stand as U+F05C and U+F022, the private-use code points that other Windows environments on
/// Unix give such characters (0xF000 plus the character).
namespace dayvane::files {

/// The native path, byte for byte; nothing for a path on a drive that does not exist here.
std::optional<std::string> ToNative(std::string_view path);

/// The native path of a document or folder that a link names. Where the exact name does not exist, one that differs
/// only in letter case is taken, because links and working folders lose their case on the way. The disk is read for
/// that: not for use on a path whose folder may be asleep.
std::optional<std::string> ResolveNative(std::string_view path);

/// The program's path for an absolute native one; nothing where it has no faithful form (invalid UTF-8, or a name that
/// itself holds one of the two private-use characters).
std::optional<std::string> FromNative(std::string_view nativePath);

/// The same for one bare name.
std::optional<std::string> NameFromNative(std::string_view nativeName);

/// A text that may hold names in the program's form, as a person reads it: with the characters that the two stand-ins
/// stand for. What the program itself keeps, and finds things by, is never this.
std::string ForReading(std::string text);

}  // namespace dayvane::files
