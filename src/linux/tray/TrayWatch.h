// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Signal.h"

namespace dayvane::widgets {

/// Whether the desktop has a notification area that shows our icon. Panels start after programs, end and start again.
class TrayWatch {
 public:
  virtual ~TrayWatch() = default;
  virtual bool IsThere() const = 0;
  controls::Signal<> Changed;
};

}  // namespace dayvane::widgets
