// SPDX-License-Identifier: MIT
#include "linux/widgets/Keys.h"

#include <algorithm>
#include <array>

#include "controls/Keys.h"

namespace dayvane::widgets {

namespace {

struct NamedKey {
  int qt;
  int classic;
};

constexpr std::array<NamedKey, 19> kNamedKeys{{{Qt::Key_Backspace, 8},
                                               {Qt::Key_Tab, 9},
                                               {Qt::Key_Return, controls::kKeyReturn},
                                               {Qt::Key_Enter, controls::kKeyReturn},
                                               {Qt::Key_Shift, 16},
                                               {Qt::Key_Control, 17},
                                               {Qt::Key_Alt, 18},
                                               {Qt::Key_Escape, 27},
                                               {Qt::Key_Space, 32},
                                               {Qt::Key_PageUp, 33},
                                               {Qt::Key_PageDown, 34},
                                               {Qt::Key_End, 35},
                                               {Qt::Key_Home, 36},
                                               {Qt::Key_Left, 37},
                                               {Qt::Key_Up, 38},
                                               {Qt::Key_Right, 39},
                                               {Qt::Key_Down, 40},
                                               {Qt::Key_Insert, 45},
                                               {Qt::Key_Delete, 46}}};

constexpr bool IsBetween(int key, int first, int last) {
  return key >= first && key <= last;
}

}  // namespace

int ClassicKeyCode(int key) {
  if (IsBetween(key, Qt::Key_0, Qt::Key_9) || IsBetween(key, Qt::Key_A, Qt::Key_Z)) return key;
  if (IsBetween(key, Qt::Key_F1, Qt::Key_F24)) return controls::kKeyF1 + key - Qt::Key_F1;
  const auto* found =
      std::find_if(kNamedKeys.begin(), kNamedKeys.end(), [&](NamedKey named) { return named.qt == key; });
  return found == kNamedKeys.end() ? 0 : found->classic;
}

int ClassicModifiers(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? controls::kShiftMask : 0) |
         (modifiers.testFlag(Qt::ControlModifier) ? controls::kCtrlMask : 0) |
         (modifiers.testFlag(Qt::AltModifier) ? controls::kAltMask : 0);
}

QKeySequence KeySequenceOf(int classicKey, int classicModifiers) {
  constexpr int kFunctionKeys = 24;
  int key = 0;
  if (IsBetween(classicKey, '0', '9') || IsBetween(classicKey, 'A', 'Z')) key = classicKey;
  if (IsBetween(classicKey, controls::kKeyF1, controls::kKeyF1 + kFunctionKeys - 1))
    key = Qt::Key_F1 + classicKey - controls::kKeyF1;
  if (key == 0) return {};
  Qt::KeyboardModifiers modifiers;
  modifiers.setFlag(Qt::ShiftModifier, (classicModifiers & controls::kShiftMask) != 0);
  modifiers.setFlag(Qt::ControlModifier, (classicModifiers & controls::kCtrlMask) != 0);
  modifiers.setFlag(Qt::AltModifier, (classicModifiers & controls::kAltMask) != 0);
  return QKeyCombination(modifiers, static_cast<Qt::Key>(key));
}

int ClassicButton(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return controls::kLeftButton;
    case Qt::RightButton:
      return controls::kRightButton;
    case Qt::MiddleButton:
      return controls::kMiddleButton;
    default:
      return 0;
  }
}

}  // namespace dayvane::widgets
