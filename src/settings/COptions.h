// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "app/Application.h"
#include "controls/Signal.h"

namespace dayvane {

class FOptions;

/// Reads and changes the user's three options. It keeps nothing between uses: the registry is the only lasting copy.
/// Values are taken from it as they stand; only the options dialog checks their ranges.
class COptions {
 public:
  static constexpr const char* ClassName = "COptions";

  explicit COptions(Application& application) : m_application(application) {}

  /// Reads the three values. A subtree that does not exist is created with the defaults; the first value that is
  /// missing or not a number is set back to its default, and so are those after it.
  void ReadValues();

  /// Lets the user change the values in the dialog and stores them. Returns whether the user accepted.
  bool ChangeValues();

  /// Whether ReadValues found no options and stored the defaults.
  bool DefaultOptionsUsed() const { return m_defaultOptionsUsed; }

  std::int32_t FavoritesThreshold() const { return m_favoritesThreshold; }  ///< days; 0 before a read
  std::int32_t PurgeAge() const { return m_purgeAge; }                      ///< days; 0 before a read
  std::int32_t TimerInterval() const { return m_timerInterval; }            ///< seconds; 0 before a read

  controls::Signal<FOptions&> DialogLoaded;  ///< for presenters: the dialog holds the values and is shown next

 private:
  void CreateOptionRegistryKeys();

  Application& m_application;
  bool m_defaultOptionsUsed = false;
  std::int32_t m_favoritesThreshold = 0;
  std::int32_t m_purgeAge = 0;
  std::int32_t m_timerInterval = 0;
};

}  // namespace dayvane
