// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "windows/files/Win32.h"

namespace dayvane::testing {

/// A key of the system's registry that was made for one test, gone with everything below it when the test ends.
class RegistryTree {
 public:
  /// A key below HKEY_CURRENT_USER of a name that nobody else has.
  RegistryTree();

  /// A key of this path, which must not be there yet; what the path leads through may be, and what of that is not goes
  /// with the tree's end too.
  RegistryTree(HKEY above, const std::string& path);
  RegistryTree(const RegistryTree&) = delete;
  RegistryTree& operator=(const RegistryTree&) = delete;
  ~RegistryTree();

  const std::string& Path() const { return m_path; }  ///< below the key above

  void AddKey(const std::string& path) const;
  void DeleteKey(const std::string& path) const;

  /// Sets a value of the key at a path below this one, which is made, to any bytes.
  void SetBytes(const std::string& path, const std::string& name, DWORD type, std::string_view bytes) const;
  void SetText(const std::string& path, const std::string& name, const std::string& text, DWORD type = REG_SZ) const;

  /// The type of a value, REG_NONE where there is none.
  DWORD TypeOf(const std::string& path, const std::string& name) const;

 private:
  HKEY m_above;
  std::string m_path;
  std::string m_made;  ///< the topmost key that this one made
};

/// A document class or an ending in the system's registry: where it may be made, HKEY_CLASSES_ROOT shows it.
class ClassTree : public RegistryTree {
 public:
  explicit ClassTree(const std::string& name);
};

}  // namespace dayvane::testing
