// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>

/// Qt's keys, modifiers and mouse buttons as the events of the controls carry them (controls/Keys.h).
namespace dayvane::widgets {

/// 0 for keys that have no number of their own.
int ClassicKeyCode(int key);

int ClassicModifiers(Qt::KeyboardModifiers modifiers);

/// A letter, digit or function key as Qt's menus and shortcuts take it; empty for any other.
QKeySequence KeySequenceOf(int classicKey, int classicModifiers);

/// 1 left, 2 right, 4 middle, 0 any other.
int ClassicButton(Qt::MouseButton button);

}  // namespace dayvane::widgets
