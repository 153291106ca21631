// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Clock.h"

/// What the lines of both logs have in common.
namespace dayvane {

/// "2026-11-21 14:03:27", the user's local time.
std::string LogTime(platform::Clock& clock);

/// A text as one field of a line: line breaks, tabs and backslashes are written \r, \n, \t and \\.
std::string LogField(const std::string& text);

}  // namespace dayvane
