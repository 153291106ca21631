// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Signal.h"

namespace dayvane::widgets {

/// Whether the desktop has an icon to start programs by that brings a hidden window back, so that nothing needs to
/// stand in for a tray icon.
class LauncherWatch {
 public:
  virtual ~LauncherWatch() = default;
  virtual bool Serves() const = 0;

  /// The window was hidden: tells the user, the first time ever, how it comes back.
  virtual void TellWayBack() = 0;

  controls::Signal<> Changed;
};

}  // namespace dayvane::widgets
