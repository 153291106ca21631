// SPDX-License-Identifier: MIT
#include "windows/widgets/Pictures.h"

#include <utility>

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

void WindowIcons::Show(HWND window, int picture, UINT dpi) {
  Icon large = PictureIcon(picture, GetSystemMetricsForDpi(SM_CXICON, dpi));
  Icon small = PictureIcon(picture, GetSystemMetricsForDpi(SM_CXSMICON, dpi));
  SendMessageW(window, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(large.get()));
  SendMessageW(window, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(small.get()));
  m_large = std::move(large);  // last: the window uses the old ones until it has the new ones
  m_small = std::move(small);
}

}  // namespace dayvane::widgets
