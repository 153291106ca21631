// SPDX-License-Identifier: MIT
#include "windows/files/LocalTime.h"

#include <algorithm>
#include <limits>

namespace dayvane::files {

namespace {

constexpr std::int64_t kYear1601 = -11644473600;
constexpr std::int64_t kYear9999 = 253402214400;
constexpr std::int64_t kTicksPerSecond = 10'000'000;
constexpr std::int64_t kNanosecondsPerTick = 100;

std::int64_t TicksSince1601(const FILETIME& time) {
  ULARGE_INTEGER sum;
  sum.LowPart = time.dwLowDateTime;
  sum.HighPart = time.dwHighDateTime;
  return static_cast<std::int64_t>(std::min<ULONGLONG>(sum.QuadPart, std::numeric_limits<std::int64_t>::max()));
}

}  // namespace

FILETIME ToFileTime(std::int64_t secondsSince1970, long nanoseconds) {
  const std::int64_t seconds = std::clamp(secondsSince1970, kYear1601, kYear9999) - kYear1601;
  ULARGE_INTEGER ticks;
  ticks.QuadPart = static_cast<ULONGLONG>(seconds * kTicksPerSecond + nanoseconds / kNanosecondsPerTick);
  return {ticks.LowPart, ticks.HighPart};
}

std::int64_t NanosecondsOf(const FILETIME& time) {
  constexpr std::int64_t kReach = std::numeric_limits<std::int64_t>::max();
  const std::int64_t since1970 = TicksSince1601(time) + kYear1601 * kTicksPerSecond;
  if (since1970 > kReach / kNanosecondsPerTick) return kReach;
  if (since1970 < -kReach / kNanosecondsPerTick) return -kReach - 1;
  return since1970 * kNanosecondsPerTick;
}

std::int64_t SecondsOf(const FILETIME& time) {
  return TicksSince1601(time) / kTicksPerSecond + kYear1601;
}

std::chrono::local_seconds LocalTime(std::int64_t secondsSince1970, const TIME_ZONE_INFORMATION* zone) {
  namespace chrono = std::chrono;
  const FILETIME moment = ToFileTime(secondsSince1970);
  SYSTEMTIME universal{};
  SYSTEMTIME local{};
  FileTimeToSystemTime(&moment, &universal);
  if (SystemTimeToTzSpecificLocalTime(zone, &universal, &local) == 0) local = universal;
  const chrono::local_days day{chrono::year(local.wYear) / local.wMonth / local.wDay};
  return day + chrono::hours(local.wHour) + chrono::minutes(local.wMinute) + chrono::seconds(local.wSecond);
}

}  // namespace dayvane::files
