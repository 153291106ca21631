// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"

namespace dayvane {

/// The system's clock in the user's time zone. Nothing else asks the system for the time that the program sees.
class WindowsClock : public platform::Clock {
 public:
  std::chrono::local_seconds Now() override;
};

}  // namespace dayvane
