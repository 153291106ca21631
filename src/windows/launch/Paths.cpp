// SPDX-License-Identifier: MIT
#include "windows/launch/Paths.h"

#include "windows/files/NativePath.h"
#include "windows/files/WideText.h"
#include "windows/files/Win32.h"

namespace dayvane::launch {

bool IsPath(const std::string& text) {
  return files::ToNative(text) && text.find_first_of("?*") == std::string::npos;
}

bool IsAtHand(const std::string& path) {
  if (path.starts_with('\\') || !files::ToNative(path)) return false;
  const wchar_t root[] = {static_cast<wchar_t>(path[0]), L':', L'\\', L'\0'};
  const UINT kind = GetDriveTypeW(root);
  return kind == DRIVE_FIXED || kind == DRIVE_RAMDISK;
}

std::string PlainPath(const std::string& path) {
  const auto wide = path.starts_with("\\\\?\\") ? files::ToWide(path) : std::nullopt;
  const auto plain = wide ? files::FromNative(*wide) : std::nullopt;
  return plain.value_or(path);
}

}  // namespace dayvane::launch
