// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "windows/files/Win32.h"

namespace dayvane::widgets {

/// A day as the system's calls and controls take it; without a time.
SYSTEMTIME ToSystemDay(std::chrono::local_days day);
std::chrono::local_days FromSystemDay(const SYSTEMTIME& day);

}  // namespace dayvane::widgets
