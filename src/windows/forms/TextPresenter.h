// SPDX-License-Identifier: MIT
#pragma once

#include "controls/SimpleControls.h"
#include "windows/widgets/ChildWindow.h"

namespace dayvane::widgets {

/// Shows a label as a text that is read and not pointed at: no access keys, in a size of its own, over as many lines as
/// it takes. Clicks on it are its parent's.
class TextPresenter : public ChildWindow {
 public:
  /// `size`: of the letters, in those of the usual text.
  TextPresenter(controls::Label& control, HWND parent, const SharedLook& look, double size = 1);

  /// The pixels that the text takes where lines have this width at most.
  SIZE SizeWithin(int width) const;

  void SetLook(const SharedLook& look) override;

 protected:
  void ShowControl() override;

 private:
  void SetLetters(const Look& look);

  const controls::Label& m_control;
  double m_size;
  Font m_font;
};

}  // namespace dayvane::widgets
