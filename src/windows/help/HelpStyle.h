// SPDX-License-Identifier: MIT
#pragma once

#include "windows/files/Win32.h"

namespace dayvane::help {

/// Colours of a page, made from the two that the system gives it. Where the user wants high contrast there are no
/// others than the system's.
struct HelpColours {
  COLORREF background = 0;
  COLORREF text = 0;
  COLORREF accent = 0;  ///< of titles
  COLORREF link = 0;
  COLORREF faint = 0;  ///< of what is beside the matter
  COLORREF shade = 0;  ///< behind tips and the headings of tables
  COLORREF line = 0;   ///< between the cells of a table
};

/// Of a page in the system's colours COLOR_…
HelpColours ColoursOf(int background, int text);

/// The same for any colours.
HelpColours ColoursOf(COLORREF background, COLORREF text, bool highContrast);

/// So much of b in a, 0 to 1.
COLORREF Mixed(COLORREF a, COLORREF b, double shareOfB);

}  // namespace dayvane::help
