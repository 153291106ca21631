// SPDX-License-Identifier: MIT
#pragma once

#include "windows/forms/FormPresenter.h"
#include "windows/widgets/ButtonPresenter.h"

namespace dayvane::widgets {

/// A dialog of the program's own: as large as what is in it, over the window that it belongs to. A class that derives
/// from it makes its children, then calls Begin.
class DialogWindow : public TopWindow {
 public:
  ~DialogWindow() override { m_isReady = false; }

  FormPresenter& Presenter() { return m_presenter; }

 protected:
  /// `owner` may be nullptr. `extendedStyle`: beside WS_EX_DLGMODALFRAME.
  DialogWindow(controls::Form& form, const wchar_t* className, HWND owner, DWORD extendedStyle = 0);

  /// Everything is there: gives it its place and the dialog its size.
  void Begin();

  /// To be called by the destructor of a class with children, whose messages must not come to it any more.
  void End() { m_isReady = false; }

  /// Gives a button a number of the system's (IDOK …) by which keys find it; that of IDOK is the one that Enter
  /// presses.
  static void Number(const ButtonPresenter& button, int id);

  /// The new look to all children.
  virtual void RelayLook() = 0;

  /// Gives all children their places; returns the room that they take inside.
  virtual SIZE LayOut() = 0;

  virtual void Paint(HDC /*context*/) {}

  void LookChanged() override;
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void FitAround(SIZE inside);
  void PaintAll();
  WORD DefaultNumber() const;                          ///< of the button that Enter presses
  void MoveFocus(WPARAM wParam, LPARAM lParam) const;  ///< as WM_NEXTDLGCTL says

  bool m_isReady = false;
  FormPresenter m_presenter;
};

/// Gives a child its place inside its parent.
void PlaceChild(const ChildWindow& child, POINT corner, SIZE size);

}  // namespace dayvane::widgets
