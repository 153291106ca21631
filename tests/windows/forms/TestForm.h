// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "windows/forms/FormPresenter.h"

namespace dayvane::testing {

/// A window whose form is presented, with nothing of its own in it.
class TestFormWindow : public widgets::TopWindow {
 public:
  explicit TestFormWindow(controls::Form& form, HWND owner = nullptr, DWORD extendedStyle = 0)
      : TopWindow({.className = L"Dayvane.Test.Form",
                   .style = WS_OVERLAPPEDWINDOW,
                   .extendedStyle = extendedStyle,
                   .parent = owner}) {
    m_presenter.emplace(form, *this, Handle());
  }
  ~TestFormWindow() override { m_isReady = false; }

  widgets::FormPresenter& Presenter() { return *m_presenter; }

  HWND AddChild(const wchar_t* className, int left, DWORD style = WS_TABSTOP) {
    return CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE | style, left, 0, 40, 20, Handle(), nullptr,
                           widgets::ThisModule(), nullptr);
  }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (m_isReady && m_presenter)
      if (const auto answer = m_presenter->OnMessage(message, wParam, lParam)) return *answer;
    return TopWindow::OnMessage(message, wParam, lParam);
  }

 private:
  bool m_isReady = true;
  std::optional<widgets::FormPresenter> m_presenter;
};

}  // namespace dayvane::testing
