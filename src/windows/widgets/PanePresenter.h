// SPDX-License-Identifier: MIT
#pragma once

#include "controls/SimpleControls.h"
#include "windows/forms/Placement.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

/// Shows a pane with the windows of the controls in it.
class PanePresenter : public Window {
 public:
  PanePresenter(controls::PictureBox& control, HWND parent, const SharedLook& look);

  /// The window is a child of the pane; the control must outlive it.
  void Add(controls::Control& control, HWND window) { m_placement.Add(control, window); }

  void SetLook(const SharedLook& look) { m_placement.SetLook(look); }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  controls::PictureBox& m_control;
  bool m_isReady = false;
  Placement m_placement;
  controls::Connection m_changed;
};

}  // namespace dayvane::widgets
