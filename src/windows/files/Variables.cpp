// SPDX-License-Identifier: MIT
#include "windows/files/Variables.h"

#include "windows/files/Win32.h"

namespace dayvane::files {

std::optional<std::wstring> ExpandVariables(const std::wstring& text) {
  constexpr DWORD kLongest = 0x8000;
  if (text.find(L'%') == std::wstring::npos) return text;
  // Another part of the program may set a variable between the two calls.
  const DWORD size = ExpandEnvironmentStringsW(text.c_str(), nullptr, 0);
  if (size == 0 || size > kLongest) return std::nullopt;
  std::wstring expanded(size, L'\0');
  const DWORD length = ExpandEnvironmentStringsW(text.c_str(), expanded.data(), size);
  if (length == 0 || length > size) return std::nullopt;
  expanded.resize(length - 1);
  return expanded;
}

}  // namespace dayvane::files
