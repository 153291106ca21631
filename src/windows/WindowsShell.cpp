// SPDX-License-Identifier: MIT
#include "windows/WindowsShell.h"

#include "windows/files/NativePath.h"
#include "windows/files/SystemError.h"
#include "windows/files/Win32.h"

namespace dayvane {

std::string WindowsShell::WindowsFolder() {
  wchar_t path[MAX_PATH];
  const UINT length = GetWindowsDirectoryW(path, MAX_PATH);
  const auto folder = length > 0 && length < MAX_PATH ? files::FromNative(path) : std::nullopt;
  if (!folder) files::Fail("");
  return *folder;
}

}  // namespace dayvane
