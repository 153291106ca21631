// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "windows/files/Win32.h"

namespace dayvane::registry {

/// An open key of the system's registry, closed with the object. Names and texts are UTF-8; what has no such form, or
/// holds a null, which the system would take for its end, is there as little as what nobody has made.
class Key {
 public:
  /// Opens a key below another one, such as HKEY_CURRENT_USER. Nothing where there is none; where it may not be opened
  /// so, an Error.
  static std::optional<Key> Open(HKEY above, const std::string& path, REGSAM access);

  /// Makes a key below an open one that is not there yet; false where it is.
  bool Create(const std::string& name) const;

  Key(Key&& other) noexcept : m_key(std::exchange(other.m_key, nullptr)) {}
  Key& operator=(Key&& other) noexcept {
    std::swap(m_key, other.m_key);
    return *this;
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (m_key != nullptr) RegCloseKey(m_key);
  }

  HKEY Get() const { return m_key; }

  /// The text of a value, "" being the key's default one, up to its first null; variables of the environment in a text
  /// that is kept so are expanded. Nothing where there is no value, and none for one that is no text: of another type,
  /// not UTF-16, or of more than kLargestText.
  std::optional<std::string> Text(const std::string& name) const;

  /// Gives a value a text, whether or not there was one.
  void SetText(const std::string& name, const std::string& text) const;

 private:
  /// Twice as long as the longest path. A program may store megabytes, and they are nothing that this one asks for.
  static constexpr DWORD kLargestText = 0x20000;  ///< bytes

  explicit Key(HKEY key) : m_key(key) {}
  LSTATUS Read(const std::wstring& name, std::wstring& text, DWORD& type, DWORD& size) const;

  HKEY m_key;
};

}  // namespace dayvane::registry
