// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <utility>

namespace dayvane::platform {

inline constexpr std::uint32_t kHkeyCurrentUser = 0x80000001U;  ///< predefined root handle of the user's settings
inline constexpr int kRegistryString = 1;                       ///< the plain string value type
inline constexpr int kKeyExists = 35004;                        ///< error number: the sub-key to add is there already

/// One key of the registry. A key or value that is missing is an Error of number kKeyMissing (base/Error.h).
class RegistryKey {
 public:
  virtual ~RegistryKey() = default;

  virtual std::unique_ptr<RegistryKey> OpenSubKey(const std::string& name) = 0;

  /// Creates a direct sub-key; fails with number kKeyExists when it is there already.
  virtual void AddSubKey(const std::string& name) = 0;

  /// The text of a value; the name "" is the key's default value.
  virtual std::string Value(const std::string& name) = 0;

  /// Assigns a new text to a value that exists: at once, or with the others while writes are held together.
  virtual void SetValue(const std::string& name, const std::string& text) = 0;

  /// Adds a value, or gives an existing one the text. `type` is kRegistryString. Values are added with their defaults:
  /// a registry may keep one that it cannot store for as long as the program runs.
  virtual void AddValue(const std::string& name, const std::string& text, int type) = 0;
};

/// The hierarchical store of the user's settings, and of the document classes under HKEY_CLASSES_ROOT (by extension:
/// class name; by class: description, "DefaultIcon", "shell\open\command"; these are read only).
class Registry {
 public:
  virtual ~Registry() = default;

  virtual std::unique_ptr<RegistryKey> KeyFromRoot(std::uint32_t root) = 0;

  /// The key of a full path such as "\HKEY_CURRENT_USER\Software\Korvath\Dayvane\Options".
  virtual std::unique_ptr<RegistryKey> KeyFromPath(const std::string& path) = 0;

  /// Where every write costs a whole file, those between these two become one; readers see them all the time. Pairs
  /// may stand inside others. The last StoreWrites fails when the values cannot be stored, which then keep the texts
  /// that they had. A registry to which a write is a small thing need not do anything here.
  virtual void HoldWrites() {}
  virtual void StoreWrites() {}
};

/// Holds together what is written to the registry as long as it lives.
class WritesTogether {
 public:
  explicit WritesTogether(Registry& registry) : m_registry(&registry) { registry.HoldWrites(); }
  WritesTogether(const WritesTogether&) = delete;
  WritesTogether& operator=(const WritesTogether&) = delete;

  /// For callers that do not call Store: what was written before an error is stored too, and failures are ignored.
  ~WritesTogether() {
    try {
      Store();
    } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): reported by Store itself
    }
  }

  void Store() {
    if (Registry* registry = std::exchange(m_registry, nullptr)) registry->StoreWrites();
  }

 private:
  Registry* m_registry;
};

}  // namespace dayvane::platform
