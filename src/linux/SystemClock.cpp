#include "linux/SystemClock.h"

#include <ctime>

#include "linux/files/PosixFileSystem.h"

namespace dayvane {

std::chrono::local_seconds SystemClock::Now() {
  return files::LocalTime(std::time(nullptr));
}

}  // namespace dayvane
