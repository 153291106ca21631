// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Deferred.h"
#include "controls/SimpleControls.h"
#include "windows/widgets/ChildWindow.h"

namespace dayvane::widgets {

/// Shows a push button.
class ButtonPresenter : public ChildWindow {
 public:
  ButtonPresenter(controls::Button& control, HWND parent, const SharedLook& look);

  /// The pixels that suit the caption.
  SIZE IdealSize() const;

 protected:
  void ShowControl() override;
  std::optional<LRESULT> OnCommand(UINT code) override;

 private:
  controls::Button& m_control;
  controls::Deferred m_deferred;
};

}  // namespace dayvane::widgets
