// SPDX-License-Identifier: MIT
#pragma once

/// Key codes (those of VK_RETURN, VK_F1 …), modifiers and mouse buttons as the events of the controls carry them.
namespace dayvane::controls {

inline constexpr int kKeyReturn = 13;
inline constexpr int kKeyF1 = 112;
inline constexpr int kKeyF10 = 121;

inline constexpr int kShiftMask = 1;
inline constexpr int kCtrlMask = 2;
inline constexpr int kAltMask = 4;

inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;
inline constexpr int kMiddleButton = 4;

}  // namespace dayvane::controls
