// SPDX-License-Identifier: MIT
#include "linux/LinuxClock.h"

#include <ctime>

#include "linux/files/NativeFile.h"

namespace dayvane {

std::chrono::local_seconds LinuxClock::Now() {
  return files::LocalTime(std::time(nullptr));
}

std::int64_t LinuxClock::Nanoseconds() {
  return std::chrono::nanoseconds(std::chrono::system_clock::now().time_since_epoch()).count();
}

std::chrono::steady_clock::time_point LinuxClock::CoarseTime() {
  struct timespec now {};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
  return std::chrono::steady_clock::time_point(std::chrono::seconds(now.tv_sec) +
                                               std::chrono::nanoseconds(now.tv_nsec));
}

}  // namespace dayvane
