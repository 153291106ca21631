#pragma once

#include <Qt>

/// Key codes, modifiers and mouse buttons as the controls' events carry them.
namespace dayvane::widgets {

inline constexpr int kKeyReturn = 13;
inline constexpr int kKeyF1 = 112;
inline constexpr int kKeyF10 = 121;

inline constexpr int kShiftMask = 1;
inline constexpr int kCtrlMask = 2;
inline constexpr int kAltMask = 4;

/// The virtual-key code of a key (the numbers of VK_RETURN, VK_F1 …); 0 for keys that have no number of their own.
int ClassicKeyCode(int key);

int ClassicModifiers(Qt::KeyboardModifiers modifiers);

/// 1 left, 2 right, 4 middle, 0 any other.
int ClassicButton(Qt::MouseButton button);

}  // namespace dayvane::widgets
