// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

/// Qt's keys, modifiers and mouse buttons as the events of the controls carry them (controls/Keys.h).
namespace dayvane::widgets {

/// 0 for keys that have no number of their own.
int ClassicKeyCode(int key);

int ClassicModifiers(Qt::KeyboardModifiers modifiers);

/// 1 left, 2 right, 4 middle, 0 any other.
int ClassicButton(Qt::MouseButton button);

}  // namespace dayvane::widgets
