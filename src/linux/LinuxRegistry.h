// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "linux/LinuxClock.h"
#include "linux/registry/DocumentClasses.h"
#include "linux/registry/SettingsFile.h"
#include "platform/Registry.h"

namespace dayvane {

/// A registry of two trees: HKEY_CURRENT_USER is the user's settings file, HKEY_CLASSES_ROOT the desktop's content
/// types and default applications, which are read only. Keys must not outlive their registry.
///
/// Names of settings are the same whatever their letter case; the spelling of the first one to be written stays.
class LinuxRegistry : public platform::Registry {
 public:
  LinuxRegistry(std::string settingsFile, ReportEvent reportEvent,
                registry::DocumentClasses::Clock clock = LinuxClock::CoarseTime);

  /// See DocumentClasses.
  void AskForPrograms(registry::DocumentClasses::LastProgram lastProgram) {
    m_classes.AskForPrograms(std::move(lastProgram));
  }

  std::unique_ptr<platform::RegistryKey> KeyFromRoot(std::uint32_t root) override;
  std::unique_ptr<platform::RegistryKey> KeyFromPath(const std::string& path) override;
  void HoldWrites() override { m_settings.HoldWrites(); }
  void StoreWrites() override { m_settings.StoreWrites(); }

 private:
  registry::SettingsFile m_settings;
  registry::DocumentClasses m_classes;
};

/// Native path of the settings file in the user's configuration folder.
std::string DefaultSettingsFile();

}  // namespace dayvane
