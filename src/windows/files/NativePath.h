// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Where a path of the program becomes one of the system's calls and back.
namespace dayvane::files {

/// The path as the system takes it literally, in the form "\\?\C:\…" or "\\?\UNC\server\…": of any length, and with
/// names that would otherwise be devices ("con.lnk") or lose their end ("Report. "). Nothing for a path that is not
/// absolute, is not UTF-8 or holds a null character.
std::optional<std::wstring> ToNative(std::string_view path);

/// The program's path for one that the system told, with or without "\\?\".
std::optional<std::string> FromNative(std::wstring_view nativePath);

}  // namespace dayvane::files
