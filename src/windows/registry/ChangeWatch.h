// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "windows/files/Handle.h"
#include "windows/registry/Key.h"

namespace dayvane::registry {

/// Notices that something changed in a key or below it.
class ChangeWatch {
 public:
  /// A key that is not there, or that may not be watched, never changes.
  ChangeWatch(HKEY above, const std::string& path);

  /// Whether something changed since the last time that this was asked.
  bool HasChanged();

 private:
  void Begin();

  files::ObjectHandle m_signal;
  std::optional<Key> m_key;
};

}  // namespace dayvane::registry
