// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "controls/Deferred.h"
#include "controls/SimpleControls.h"
#include "shell/MCommands.h"
#include "windows/widgets/ChildWindow.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

/// Shows the toolbar: a strip of buttons between two rules. A button without a tip is not shown. With the keyboard the
/// arrow keys go from button to button, and Enter or the space bar presses.
class ToolbarPresenter : public Window {
 public:
  using Buttons = std::span<controls::Button, kToolbarButtons>;

  ToolbarPresenter(controls::PictureBox& strip, Buttons buttons, std::span<controls::Line> rules, HWND parent,
                   const SharedLook& look);

  /// Pixels that the pictures want.
  int IdealHeight() const;

  void SetLook(const SharedLook& look);

  HWND BarHandle() const { return m_bar.Handle(); }

  /// The number by which the window knows a button, which is also that of its command.
  static constexpr int CommandOf(std::size_t button) { return static_cast<int>(button) + 1; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  class Bar : public ChildWindow {
   public:
    Bar(controls::PictureBox& strip, Buttons buttons, HWND parent, const SharedLook& look);
    void SetLook(const SharedLook& look) override;

   protected:
    void ShowControl() override {}
    std::optional<LRESULT> OnCommandOf(UINT id, UINT code) override;
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

   private:
    void AddButtons();
    void ShowButton(std::size_t index);
    void ShowPictures();
    void Press(std::size_t index);
    bool KeyDown(WPARAM key);
    void MoveHot(int first, int step);
    int HelpIdAt(POINT screen) const;

    Buttons m_buttons;
    bool m_isReady = false;
    ImageListHandle m_pictures;
    controls::Deferred m_deferred;
    std::vector<controls::Connection> m_connections;
  };

  void DrawRules();

  controls::PictureBox& m_strip;
  std::span<controls::Line> m_rules;
  bool m_isReady = false;
  Bar m_bar;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
