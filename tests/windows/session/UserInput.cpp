// SPDX-License-Identifier: MIT
#include "tests/windows/session/UserInput.h"

#include <stdexcept>
#include <vector>

namespace dayvane::session {

namespace {

void SendAll(std::vector<INPUT> inputs) {
  const auto count = static_cast<UINT>(inputs.size());
  if (SendInput(count, inputs.data(), sizeof(INPUT)) != count) throw std::runtime_error("no input is taken");
}

INPUT MouseInput(DWORD flags, POINT place = {}) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = place.x;
  input.mi.dy = place.y;
  input.mi.dwFlags = flags;
  return input;
}

INPUT KeyInput(WORD key, WORD scan, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = scan;
  input.ki.dwFlags = flags;
  return input;
}

/// The screen has 65536 places in each direction, whatever its pixels.
INPUT MoveTo(POINT place) {
  const int width = GetSystemMetrics(SM_CXSCREEN);
  const int height = GetSystemMetrics(SM_CYSCREEN);
  return MouseInput(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE,
                    {(place.x * 65536 + width / 2) / width, (place.y * 65536 + height / 2) / height});
}

}  // namespace

void Click(POINT place) {
  SendAll({MoveTo(place), MouseInput(MOUSEEVENTF_LEFTDOWN), MouseInput(MOUSEEVENTF_LEFTUP)});
}

void DoubleClick(POINT place) {
  Click(place);
  SendAll({MouseInput(MOUSEEVENTF_LEFTDOWN), MouseInput(MOUSEEVENTF_LEFTUP)});
}

void RightClick(POINT place) {
  SendAll({MoveTo(place), MouseInput(MOUSEEVENTF_RIGHTDOWN), MouseInput(MOUSEEVENTF_RIGHTUP)});
}

void PressKey(WORD key) {
  SendAll({KeyInput(key, 0, 0), KeyInput(key, 0, KEYEVENTF_KEYUP)});
}

void PressKey(WORD modifier, WORD key) {
  SendAll({KeyInput(modifier, 0, 0), KeyInput(key, 0, 0), KeyInput(key, 0, KEYEVENTF_KEYUP),
           KeyInput(modifier, 0, KEYEVENTF_KEYUP)});
}

void TypeText(const std::wstring& text) {
  std::vector<INPUT> inputs;
  for (const wchar_t unit : text) {
    inputs.push_back(KeyInput(0, unit, KEYEVENTF_UNICODE));
    inputs.push_back(KeyInput(0, unit, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP));
  }
  SendAll(inputs);
}

}  // namespace dayvane::session
