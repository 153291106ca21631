// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "controls/Menu.h"
#include "windows/files/Win32.h"

/// Keys as the controls carry them (controls/Keys.h). Their codes are the system's own; the modifiers are not.
namespace dayvane::widgets {

/// Which of Shift, Ctrl and Alt are down, as the events of the controls carry it, in the message that is handled now.
int ModifiersNow();

/// A menu's key as a window's table of keys has it.
ACCEL AcceleratorOf(const controls::MenuKey& key, WORD command);

/// How a menu writes a key beside its entry, such as "Ctrl+W"; empty for none.
std::wstring KeyWords(const controls::MenuKey& key);

}  // namespace dayvane::widgets
