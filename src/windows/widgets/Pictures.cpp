// SPDX-License-Identifier: MIT
#include "windows/widgets/Pictures.h"

#include "windows/widgets/Window.h"

namespace dayvane::widgets {

namespace {

using LoadScaledDown = HRESULT(WINAPI*)(HINSTANCE, PCWSTR, int, int, HICON*);

/// LoadIconWithScaleDown, which the compiler's library of the common controls leaves out.
LoadScaledDown FindLoadScaledDown() {
  const HMODULE controls = GetModuleHandleW(L"comctl32.dll");
  if (controls == nullptr) return nullptr;
  return reinterpret_cast<LoadScaledDown>(reinterpret_cast<void*>(GetProcAddress(controls, "LoadIconWithScaleDown")));
}

}  // namespace

Icon PictureIcon(int picture, int pixels) {
  static const LoadScaledDown loadScaledDown = FindLoadScaledDown();
  constexpr int kGreatestNumber = 0xFFFF;
  if (picture <= 0 || picture > kGreatestNumber || pixels <= 0) return nullptr;
  const wchar_t* name = MAKEINTRESOURCEW(picture);
  HICON icon = nullptr;
  if (loadScaledDown != nullptr && SUCCEEDED(loadScaledDown(ThisModule(), name, pixels, pixels, &icon)))
    return Icon(icon);
  return Icon(static_cast<HICON>(LoadImageW(ThisModule(), name, IMAGE_ICON, pixels, pixels, LR_DEFAULTCOLOR)));
}

}  // namespace dayvane::widgets
