// SPDX-License-Identifier: MIT
#include "windows/widgets/Window.h"

#include "windows/files/SystemError.h"
#include "windows/files/WideText.h"
#include "windows/widgets/ChildWindow.h"
#include "windows/widgets/Guard.h"

namespace dayvane::widgets {

namespace {

void RegisterKind(const Window::Kind& kind, WNDPROC procedure) {
  WNDCLASSEXW known{};
  known.cbSize = sizeof known;
  if (GetClassInfoExW(ThisModule(), kind.className, &known) != 0) return;
  WNDCLASSEXW window{};
  window.cbSize = sizeof window;
  window.style = kind.classStyle;
  window.lpfnWndProc = procedure;
  window.hInstance = ThisModule();
  window.hCursor = LoadCursorW(nullptr, kind.pointer);
  window.hbrBackground = GetSysColorBrush(kind.background);
  window.lpszClassName = kind.className;
  if (kind.icon != 0) {
    window.hIcon = LoadIconW(ThisModule(), MAKEINTRESOURCEW(kind.icon));
    window.hIconSm =
        static_cast<HICON>(LoadImageW(ThisModule(), MAKEINTRESOURCEW(kind.icon), IMAGE_ICON,
                                      GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), LR_SHARED));
  }
  if (RegisterClassExW(&window) == 0) files::Fail("a window's class");
}

}  // namespace

HINSTANCE ThisModule() {
  return GetModuleHandleW(nullptr);
}

std::wstring ShownText(const std::string& text) {
  if (auto wide = files::ToWide(text)) return *std::move(wide);
  const int size = static_cast<int>(text.size());
  std::wstring damaged(text.size(), L'\0');
  damaged.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, damaged.data(), size)));
  return damaged;
}

void SetText(HWND window, const std::string& text) {
  SetWindowTextW(window, ShownText(text).c_str());
}

std::wstring WideTextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

Window::Window(const Kind& kind) {
  RegisterKind(kind, &Window::Procedure);
  CreateWindowExW(kind.extendedStyle, kind.className, L"", kind.style, CW_USEDEFAULT, CW_USEDEFAULT, 0, 0, kind.parent,
                  nullptr, ThisModule(), this);
  if (m_handle == nullptr) files::Fail("a window");
}

Window::~Window() {
  if (m_handle == nullptr) return;
  SetWindowLongPtrW(m_handle, GWLP_USERDATA, 0);
  DestroyWindow(m_handle);
}

LRESULT Window::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto answer = Reflect(message, wParam, lParam)) return *answer;
  return DefWindowProcW(m_handle, message, wParam, lParam);
}

LRESULT CALLBACK Window::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    auto* created = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
    created->m_handle = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
  }
  auto* self = reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  if (message == WM_NCDESTROY) self->m_handle = nullptr;
  return Guarded([&] { return self->OnMessage(message, wParam, lParam); }, LRESULT{0});
}

}  // namespace dayvane::widgets
