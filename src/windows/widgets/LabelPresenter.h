// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "controls/SimpleControls.h"
#include "windows/widgets/ChildWindow.h"

namespace dayvane::widgets {

/// A caption as plain words, without its access key and the colon at its end: what a field is called for screen
/// readers.
std::string SpokenCaption(const std::string& caption);

/// Shows a label: plain text, whose access key goes to the next control that takes the keyboard.
class LabelPresenter : public ChildWindow {
 public:
  LabelPresenter(controls::Label& control, HWND parent, const SharedLook& look);

  /// The pixels that the caption takes on one line.
  SIZE IdealSize() const;

 protected:
  void ShowControl() override;

 private:
  const controls::Label& m_control;
};

}  // namespace dayvane::widgets
