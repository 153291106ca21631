// SPDX-License-Identifier: MIT
#include "windows/WindowsClock.h"

#include "windows/files/LocalTime.h"

namespace dayvane {

std::chrono::local_seconds WindowsClock::Now() {
  FILETIME now{};
  GetSystemTimeAsFileTime(&now);
  return files::LocalTime(files::SecondsOf(now));
}

}  // namespace dayvane
