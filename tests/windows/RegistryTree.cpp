// SPDX-License-Identifier: MIT
#include "tests/windows/RegistryTree.h"

#include <atomic>
#include <optional>
#include <stdexcept>

#include "windows/files/WideText.h"
#include "windows/registry/Key.h"

namespace dayvane::testing {

namespace {

std::wstring Wide(const std::string& text) {
  return files::ToWide(text).value();
}

bool IsThere(HKEY above, const std::string& path) {
  return registry::Key::Open(above, path, KEY_QUERY_VALUE).has_value();
}

/// The first key on the way that is not there yet.
std::string FirstToMake(HKEY above, const std::string& path) {
  for (auto end = path.find('\\'); end != std::string::npos; end = path.find('\\', end + 1))
    if (!IsThere(above, path.substr(0, end))) return path.substr(0, end);
  return path;
}

std::string NameOfItsOwn() {
  static std::atomic<int> count = 0;
  return "DayvaneTest-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count);
}

/// Whether HKEY_CLASSES_ROOT shows what the user's own classes have. Not every implementation does.
bool ShowsClassesOfUser() {
  const RegistryTree probe(HKEY_CURRENT_USER, "Software\\Classes\\" + NameOfItsOwn());
  return IsThere(HKEY_CLASSES_ROOT, probe.Path().substr(probe.Path().rfind('\\') + 1));
}

}  // namespace

RegistryTree::RegistryTree() : RegistryTree(HKEY_CURRENT_USER, NameOfItsOwn()) {}

RegistryTree::RegistryTree(HKEY above, const std::string& path)
    : m_above(above), m_path(path), m_made(FirstToMake(above, path)) {
  if (IsThere(above, path)) throw std::runtime_error("there already: " + path);
  AddKey("");
}

RegistryTree::~RegistryTree() {
  RegDeleteTreeW(m_above, Wide(m_made).c_str());
}

void RegistryTree::AddKey(const std::string& path) const {
  HKEY key = nullptr;
  const std::wstring whole = Wide(path.empty() ? m_path : m_path + "\\" + path);
  if (RegCreateKeyExW(m_above, whole.c_str(), 0, nullptr, 0, KEY_QUERY_VALUE, nullptr, &key, nullptr) != ERROR_SUCCESS)
    throw std::runtime_error("cannot make the key " + path);
  RegCloseKey(key);
}

void RegistryTree::DeleteKey(const std::string& path) const {
  RegDeleteTreeW(m_above, Wide(m_path + "\\" + path).c_str());
}

void RegistryTree::SetBytes(const std::string& path, const std::string& name, DWORD type,
                            std::string_view bytes) const {
  AddKey(path);
  const auto key = registry::Key::Open(m_above, path.empty() ? m_path : m_path + "\\" + path, KEY_SET_VALUE);
  const auto size = static_cast<DWORD>(bytes.size());
  const auto* data = reinterpret_cast<const BYTE*>(bytes.data());
  if (RegSetValueExW(key.value().Get(), Wide(name).c_str(), 0, type, data, size) != ERROR_SUCCESS)
    throw std::runtime_error("cannot set the value " + name);
}

void RegistryTree::SetText(const std::string& path, const std::string& name, const std::string& text,
                           DWORD type) const {
  const std::wstring wide = Wide(text);
  SetBytes(path, name, type, {reinterpret_cast<const char*>(wide.c_str()), (wide.size() + 1) * sizeof(wchar_t)});
}

DWORD RegistryTree::TypeOf(const std::string& path, const std::string& name) const {
  const auto key = registry::Key::Open(m_above, path.empty() ? m_path : m_path + "\\" + path, KEY_QUERY_VALUE);
  DWORD type = REG_NONE;
  if (key) RegQueryValueExW(key->Get(), Wide(name).c_str(), nullptr, &type, nullptr, nullptr);
  return type;
}

ClassTree::ClassTree(const std::string& name)
    : RegistryTree(ShowsClassesOfUser() ? HKEY_CURRENT_USER : HKEY_CLASSES_ROOT,
                   ShowsClassesOfUser() ? "Software\\Classes\\" + name : name) {}

}  // namespace dayvane::testing
