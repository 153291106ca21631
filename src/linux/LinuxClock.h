// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/Clock.h"

namespace dayvane {

/// The system's clock: for the program in the user's time zone, and as the desktop's own parts need it. Nothing else
/// asks the system for the time.
class LinuxClock : public platform::Clock {
 public:
  std::chrono::local_seconds Now() override;

  /// The present moment in nanoseconds since 1970, UTC.
  static std::int64_t Nanoseconds();

  /// The steady clock to a few milliseconds, for a quarter of the price of the exact one.
  static std::chrono::steady_clock::time_point CoarseTime();
};

}  // namespace dayvane
