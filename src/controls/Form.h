// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "controls/Control.h"

namespace dayvane::controls {

/// The numbers are the settings'.
enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

/// Who asks a form to unload; the numbers are the classic ones.
enum class UnloadMode { ControlMenu = 0, Code = 1, SystemSession = 2, TaskManager = 3 };

enum class MousePointer { Default = 0, Hourglass = 11 };

/// A window. It starts hidden. Left, Top, Width and Height are those of its frame on the screen, in the normal state.
class Form : public Control {
 public:
  Form() { SetVisible(false); }

  const std::string& Caption() const { return m_caption; }
  void SetCaption(std::string caption) { Assign(m_caption, std::move(caption)); }

  WindowState State() const { return m_state; }

  /// A change raises Resize, as the desktop's own minimising and maximising do.
  void SetState(WindowState state) {
    if (m_state == state) return;
    Assign(m_state, state);
    Resize.Raise();
  }

  MousePointer Pointer() const { return m_pointer; }
  void SetPointer(MousePointer pointer) { Assign(m_pointer, pointer); }

  /// The room inside the frame, below the menu bar.
  double ScaleWidth() const { return m_scaleWidth; }
  double ScaleHeight() const { return m_scaleHeight; }

  /// What the desktop tells when the room inside changes.
  void SetScale(double width, double height) {
    if (m_scaleWidth == width && m_scaleHeight == height) return;
    m_scaleWidth = width;
    m_scaleHeight = height;
    Resize.Raise();
  }

  /// Asks the form to go: QueryUnload may refuse; else Unload is raised and the form is hidden and unloaded.
  /// Returns whether it went.
  bool RequestUnload(UnloadMode mode) {
    if (m_unloaded) return true;
    bool cancel = false;
    QueryUnload.Raise(cancel, mode);
    if (cancel) return false;
    m_unloaded = true;
    Unload.Raise();
    SetVisible(false);
    Unloaded.Raise();
    return true;
  }
  bool IsUnloaded() const { return m_unloaded; }

  /// Starts the What's-This mode: the next click on a control shows that control's help.
  void WhatsThisMode() { WhatsThisWanted.Raise(); }

  Signal<> Activate;
  Signal<> Resize;
  Signal<bool&, UnloadMode> QueryUnload;  ///< cancel
  Signal<> Unload;
  Signal<int, int> KeyUp;    ///< key code, modifiers (1 Shift, 2 Ctrl, 4 Alt)
  Signal<> Unloaded;         ///< for presenters: the form is gone for good
  Signal<> WhatsThisWanted;  ///< for presenters

 private:
  std::string m_caption;
  WindowState m_state = WindowState::Normal;
  MousePointer m_pointer = MousePointer::Default;
  double m_scaleWidth = 0;
  double m_scaleHeight = 0;
  bool m_unloaded = false;
};

}  // namespace dayvane::controls
