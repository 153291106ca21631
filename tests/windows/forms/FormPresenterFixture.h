// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>
#include <vector>

#include "tests/windows/MessageLoop.h"
#include "tests/windows/forms/TestForm.h"

namespace dayvane::widgets {

/// A form with its window, hidden at first.
class WindowsFormPresenterTest : public ::testing::Test {
 protected:
  void Open() {
    m_form.SetVisible(true);
    testing::RunMessages();
  }
  HWND Handle() const { return m_window.Handle(); }
  UINT Dpi() const { return GetDpiForWindow(Handle()); }
  FormPresenter& Presenter() { return m_window.Presenter(); }
  void HearUnloads(bool refuse) {
    m_form.QueryUnload.Connect([this, refuse](bool& cancel, controls::UnloadMode mode) {
      m_modes.push_back(mode);
      cancel = refuse;
    });
  }
  RECT Frame() const {
    RECT frame{};
    GetWindowRect(Handle(), &frame);
    return frame;
  }

  controls::Form m_form;
  testing::TestFormWindow m_window{m_form};
  DeferredWaker m_waker;
  std::vector<controls::UnloadMode> m_modes;
};

}  // namespace dayvane::widgets
