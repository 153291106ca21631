// SPDX-License-Identifier: MIT
#include "windows/widgets/Keys.h"

#include "controls/Keys.h"

namespace dayvane::widgets {

namespace {

using controls::kAltMask;
using controls::kCtrlMask;
using controls::kShiftMask;

bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

}  // namespace

int ModifiersNow() {
  return (IsDown(VK_SHIFT) ? kShiftMask : 0) | (IsDown(VK_CONTROL) ? kCtrlMask : 0) | (IsDown(VK_MENU) ? kAltMask : 0);
}

ACCEL AcceleratorOf(const controls::MenuKey& key, WORD command) {
  ACCEL accelerator{};
  accelerator.fVirt = FVIRTKEY;
  if ((key.modifiers & kShiftMask) != 0) accelerator.fVirt |= FSHIFT;
  if ((key.modifiers & kCtrlMask) != 0) accelerator.fVirt |= FCONTROL;
  if ((key.modifiers & kAltMask) != 0) accelerator.fVirt |= FALT;
  accelerator.key = static_cast<WORD>(key.key);
  accelerator.cmd = command;
  return accelerator;
}

std::wstring KeyWords(const controls::MenuKey& key) {
  if (key.key == 0) return {};
  std::wstring words;
  if ((key.modifiers & kCtrlMask) != 0) words += L"Ctrl+";
  if ((key.modifiers & kAltMask) != 0) words += L"Alt+";
  if ((key.modifiers & kShiftMask) != 0) words += L"Shift+";
  const bool isFunctionKey = key.key >= VK_F1 && key.key <= VK_F24;
  return words +
         (isFunctionKey ? L'F' + std::to_wstring(key.key - VK_F1 + 1) : std::wstring(1, static_cast<wchar_t>(key.key)));
}

}  // namespace dayvane::widgets
