// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace dayvane::platform {

/// The only source of "now".
class Clock {
 public:
  virtual ~Clock() = default;

  /// The user's local time.
  virtual std::chrono::local_seconds Now() = 0;
};

}  // namespace dayvane::platform
