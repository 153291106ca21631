// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"

namespace dayvane {

/// The system's clock in the user's time zone.
class LinuxClock : public platform::Clock {
 public:
  std::chrono::local_seconds Now() override;
};

}  // namespace dayvane
