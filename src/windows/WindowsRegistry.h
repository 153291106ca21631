// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "base/ReportEvent.h"
#include "platform/Registry.h"
#include "windows/registry/DocumentClasses.h"

namespace dayvane {

/// The system's registry: HKEY_CURRENT_USER with the user's settings, and HKEY_CLASSES_ROOT with the document classes,
/// of which the default values are read. Keys must not outlive their registry.
class WindowsRegistry : public platform::Registry {
 public:
  /// `reportEvent` is told of defaults that cannot be stored. `userRoot` is the path of another key below
  /// HKEY_CURRENT_USER that stands for it.
  explicit WindowsRegistry(ReportEvent reportEvent, std::string userRoot = {},
                           registry::DocumentClasses::Clock clock = registry::DocumentClasses::Tick);

  std::unique_ptr<platform::RegistryKey> KeyFromRoot(std::uint32_t root) override;
  std::unique_ptr<platform::RegistryKey> KeyFromPath(const std::string& path) override;

 private:
  friend class UserKey;

  /// Where a path of the user's settings lies below the system's HKEY_CURRENT_USER.
  std::string Located(const std::string& path) const;

  /// Keeps a default for as long as the program runs, because it could not be stored.
  void KeepForThisRun(const std::string& value, const std::string& text, const std::string& reason);

  ReportEvent m_reportEvent;
  std::string m_userRoot;
  std::map<std::string, std::string> m_thisRuns;  ///< by the path and name in small letters
  registry::DocumentClasses m_classes;
};

}  // namespace dayvane
