// SPDX-License-Identifier: MIT
#include "windows/registry/Key.h"

#include <algorithm>
#include <string_view>

#include "base/Error.h"
#include "windows/files/SystemError.h"
#include "windows/files/Variables.h"
#include "windows/files/WideText.h"

namespace dayvane::registry {

namespace {

std::optional<std::wstring> WideName(const std::string& name) {
  return name.find('\0') == std::string::npos ? files::ToWide(name) : std::nullopt;
}

std::wstring NewName(const std::string& name) {
  auto wide = WideName(name);
  if (!wide) throw Error(kInvalidProcedureCall, "Not a name in the registry", name);
  return std::move(*wide);
}

bool IsAbsence(LSTATUS status) {
  // A key that somebody else has deleted stays open, and empty.
  constexpr LSTATUS kNoSuchKeyOrValue = ERROR_FILE_NOT_FOUND;
  return status == kNoSuchKeyOrValue || status == ERROR_PATH_NOT_FOUND || status == ERROR_KEY_DELETED ||
         status == ERROR_BAD_PATHNAME || status == ERROR_INVALID_PARAMETER;
}

[[noreturn]] void FailWith(LSTATUS status, const std::string& name) {
  files::Fail(static_cast<std::uint32_t>(status), name);
}

}  // namespace

std::optional<Key> Key::Open(HKEY above, const std::string& path, REGSAM access) {
  const auto wide = WideName(path);
  if (!wide) return std::nullopt;
  HKEY key = nullptr;
  const LSTATUS status = RegOpenKeyExW(above, wide->c_str(), 0, access, &key);
  if (IsAbsence(status)) return std::nullopt;
  if (status != ERROR_SUCCESS) FailWith(status, path);
  return Key(key);
}

bool Key::Create(const std::string& name) const {
  HKEY key = nullptr;
  DWORD disposition = 0;
  const LSTATUS status = RegCreateKeyExW(m_key, NewName(name).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                         KEY_QUERY_VALUE, nullptr, &key, &disposition);
  if (status != ERROR_SUCCESS) FailWith(status, name);
  const Key created(key);
  return disposition == REG_CREATED_NEW_KEY;
}

LSTATUS Key::Read(const std::wstring& name, std::wstring& text, DWORD& type, DWORD& size) const {
  size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
  return RegQueryValueExW(m_key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size);
}

std::optional<std::string> Key::Text(const std::string& name) const {
  const auto wide = WideName(name);
  if (!wide) return std::nullopt;
  std::wstring text(128, L'\0');
  DWORD type = REG_NONE;
  DWORD size = 0;
  LSTATUS status = Read(*wide, text, type, size);
  while (status == ERROR_MORE_DATA && size <= kLargestText) {
    text.resize(size / sizeof(wchar_t) + 1);
    status = Read(*wide, text, type, size);
  }
  if (IsAbsence(status) || status == ERROR_MORE_DATA) return std::nullopt;
  if (status != ERROR_SUCCESS) FailWith(status, name);
  const bool isText = (type == REG_SZ || type == REG_EXPAND_SZ) && size % sizeof(wchar_t) == 0;
  if (!isText) return std::nullopt;
  // Whoever stored it may have forgotten the null at the end.
  text.resize(size / sizeof(wchar_t));
  text.resize(std::min(text.find(L'\0'), text.size()));
  const auto expanded = type == REG_EXPAND_SZ ? files::ExpandVariables(text) : std::optional(text);
  return expanded ? files::FromWide(*expanded) : std::nullopt;
}

void Key::SetText(const std::string& name, const std::string& text) const {
  const std::wstring wide = NewName(text);
  const DWORD size = static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t));
  const LSTATUS status =
      RegSetValueExW(m_key, NewName(name).c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(wide.c_str()), size);
  if (status != ERROR_SUCCESS) FailWith(status, name);
}

}  // namespace dayvane::registry
