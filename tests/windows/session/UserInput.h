// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "windows/files/Win32.h"

/// The user's mouse and keyboard, which the system takes for real ones.
namespace dayvane::session {

void Click(POINT place);
void DoubleClick(POINT place);
void RightClick(POINT place);

void PressKey(WORD key);
void PressKey(WORD modifier, WORD key);  ///< with a modifier held down
void TypeText(const std::wstring& text);

}  // namespace dayvane::session
