// SPDX-License-Identifier: MIT
#pragma once

#include "controls/TextControls.h"
#include "windows/widgets/ChildWindow.h"

namespace dayvane::widgets {

/// Shows a text box and the pair of arrows beside it as one field. What may be typed and how far the arrows go is the
/// program's business.
class NumberFieldPresenter : public ChildWindow {
 public:
  NumberFieldPresenter(controls::TextBox& text, controls::UpDown& arrows, HWND parent, const SharedLook& look);

  /// The pixels that suit a number.
  SIZE IdealSize() const;

  /// Gives field and arrows their place in the parent, in pixels.
  void Place(const RECT& place);

  HWND ArrowsHandle() const { return m_arrows.Handle(); }

 protected:
  void ShowControl() override;
  std::optional<LRESULT> OnCommand(UINT code) override;
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  class Arrows : public ChildWindow {
   public:
    Arrows(controls::UpDown& control, NumberFieldPresenter& field, HWND parent, const SharedLook& look);

   protected:
    void ShowControl() override {}
    std::optional<LRESULT> OnNotify(NMHDR& notice) override;

   private:
    NumberFieldPresenter& m_field;
  };

  /// A step for every one asked for, until one changes nothing: the end is reached, which is one beep and not many.
  void StepBy(int steps);
  void Turn(int delta);  ///< of the mouse wheel
  std::optional<LRESULT> OnFrame(UINT message, WPARAM wParam, LPARAM lParam);
  void NarrowToLine(RECT& inside) const;
  void FillAroundLine() const;
  void ShowSelection();

  controls::TextBox& m_text;
  controls::UpDown& m_upDown;
  bool m_isReady = false;
  int m_turned = 0;  ///< of the mouse wheel, and not yet a step
  Arrows m_arrows;
  controls::Connection m_selectionWanted;
};

}  // namespace dayvane::widgets
