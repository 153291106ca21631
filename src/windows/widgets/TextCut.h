// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "windows/files/Win32.h"

namespace dayvane::widgets {

/// A text in as many pixels as there are: what does not fit is cut out of its middle, whole characters at a time.
std::wstring CutInTheMiddle(const std::wstring& text, HFONT font, int width);

}  // namespace dayvane::widgets
