// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>

#include "windows/files/Win32.h"

namespace dayvane::files {

/// The user's local time at a moment, in seconds since 1970: with the rule of that date, not of today. Moments outside
/// the years 1601 to 9999 are moved to the nearer end. Another zone than the user's may be given.
std::chrono::local_seconds LocalTime(std::int64_t secondsSince1970, const TIME_ZONE_INFORMATION* zone = nullptr);

/// A FILETIME, hundreds of nanoseconds since 1601, as nanoseconds since 1970; years that these do not reach are the
/// nearer end.
std::int64_t NanosecondsOf(const FILETIME& time);

/// The same in whole seconds, of any year.
std::int64_t SecondsOf(const FILETIME& time);

FILETIME ToFileTime(std::int64_t secondsSince1970, long nanoseconds = 0);

}  // namespace dayvane::files
