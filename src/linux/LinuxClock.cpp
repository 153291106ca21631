// SPDX-License-Identifier: MIT
#include "linux/LinuxClock.h"

#include <ctime>

#include "linux/LinuxFileSystem.h"

namespace dayvane {

std::chrono::local_seconds LinuxClock::Now() {
  return files::LocalTime(std::time(nullptr));
}

}  // namespace dayvane
