// SPDX-License-Identifier: MIT
#include "windows/files/WideText.h"

#include "windows/files/Win32.h"

namespace dayvane::files {

std::optional<std::wstring> ToWide(std::string_view text) {
  if (text.empty()) return std::wstring();
  const int size = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, nullptr, 0);
  if (length <= 0) return std::nullopt;
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, wide.data(), length);
  return wide;
}

std::optional<std::string> FromWide(std::wstring_view wide) {
  if (wide.empty()) return std::string();
  const int size = static_cast<int>(wide.size());
  const int length =
      WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, wide.data(), size, nullptr, 0, nullptr, nullptr);
  if (length <= 0) return std::nullopt;
  std::string text(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, wide.data(), size, text.data(), length, nullptr, nullptr);
  return text;
}

}  // namespace dayvane::files
