// SPDX-License-Identifier: MIT
#pragma once

#include "windows/widgets/GdiHandles.h"

namespace dayvane::widgets {

/// The icon of one of the program's pictures (PictureId) in pixels; nothing for a number without a picture. It is drawn
/// for the next larger size that there is one for, and made smaller.
Icon PictureIcon(int picture, int pixels);

/// The icons of a window, which does not own them: in its caption and task list, and where it stands for the program.
class WindowIcons {
 public:
  /// Gives a window one of the program's pictures, in the sizes for its dots per inch.
  void Show(HWND window, int picture, UINT dpi);

 private:
  Icon m_large;
  Icon m_small;
};

}  // namespace dayvane::widgets
