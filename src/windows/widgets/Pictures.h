// SPDX-License-Identifier: MIT
#pragma once

#include "windows/widgets/GdiHandles.h"

namespace dayvane::widgets {

/// The icon of one of the program's pictures (PictureId) in pixels; nothing for a number without a picture. It is drawn
/// for the next larger size that there is one for, and made smaller.
Icon PictureIcon(int picture, int pixels);

}  // namespace dayvane::widgets
