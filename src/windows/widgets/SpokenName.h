// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "windows/files/Win32.h"

/// What screen readers call a window. The text of a window is a name to few of them, and lists, trees, calendars and
/// toolbars have no other.
namespace dayvane::widgets {

/// Names a window. Where the system has no such service, nothing happens. Needs a launch::ComApartment.
void SpeakName(HWND window, const std::string& name);

/// Forgets the name. The system wants this before the window ends.
void ForgetSpokenName(HWND window);

}  // namespace dayvane::widgets
