// SPDX-License-Identifier: MIT
#pragma once

#include "windows/files/Win32.h"

namespace dayvane::widgets {

/// A window's place, with its frame, as near to the wanted one as fits the available part of a screen.
RECT FitToScreen(const RECT& wanted, const RECT& available);

/// The part of a screen that task bars leave, of the screen that shows most of the rectangle; of the primary screen
/// when none does.
RECT AvailableScreenFor(const RECT& wanted);

/// The same for the screen of a point.
RECT AvailableScreenAt(POINT point);

/// A rectangle of a size in the middle of another one.
RECT CentredIn(const RECT& around, SIZE size);

}  // namespace dayvane::widgets
