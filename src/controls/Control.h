// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <utility>

#include "controls/Signal.h"

namespace dayvane::controls {

/// What every control has. Lengths are in twips, 1440 to the inch, relative to the container. A control is state and
/// events only: a presenter shows it, listens to `Changed` and calls the control's events when the user acts.
class Control {
 public:
  Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const std::string& Name() const { return m_name; }  ///< for screen readers and tests
  void SetName(std::string name) { Assign(m_name, std::move(name)); }

  bool Visible() const { return m_visible; }
  void SetVisible(bool visible) { Assign(m_visible, visible); }

  bool Enabled() const { return m_enabled; }
  void SetEnabled(bool enabled) { Assign(m_enabled, enabled); }

  double Left() const { return m_left; }
  double Top() const { return m_top; }
  double Width() const { return m_width; }
  double Height() const { return m_height; }

  /// Moves and sizes at once. A size below 0 becomes 0.
  void Move(double left, double top, double width, double height) {
    width = std::max(width, 0.0);
    height = std::max(height, 0.0);
    const bool sized = width != m_width || height != m_height;
    if (!sized && left == m_left && top == m_top) return;
    m_left = left;
    m_top = top;
    m_width = width;
    m_height = height;
    Changed.Raise();
    if (sized) SizeChanged();
  }

  int WhatsThisHelpID() const { return m_whatsThisHelpId; }  ///< help context of the control, 0 for none
  void SetWhatsThisHelpID(int id) { Assign(m_whatsThisHelpId, id); }

  /// Asks for keyboard focus.
  void SetFocus() { FocusWanted.Raise(); }

  /// Asks to be painted at once, before waiting events run.
  void Refresh() { RefreshWanted.Raise(); }

  Signal<> Changed;        ///< some state is new; presenters read it again
  Signal<> FocusWanted;    ///< for presenters
  Signal<> RefreshWanted;  ///< for presenters

 protected:
  template <class Value>
  void Assign(Value& member, Value value) {
    if (member == value) return;
    member = std::move(value);
    Changed.Raise();
  }

  /// Called after Move has changed the size.
  virtual void SizeChanged() {}

 private:
  std::string m_name;
  bool m_visible = true;
  bool m_enabled = true;
  double m_left = 0;
  double m_top = 0;
  double m_width = 0;
  double m_height = 0;
  int m_whatsThisHelpId = 0;
};

}  // namespace dayvane::controls
