// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "windows/files/Win32.h"

namespace dayvane::widgets {

/// Shows the help topic of a control at a point of the screen.
using TopicHelp = std::function<void(int contextId, POINT at)>;

/// The What's-This mode of a window: the next click on a control shows that control's topic. The system's own mode ends
/// in a message that only dialogs of its own make something of.
class WhatsThis {
 public:
  explicit WhatsThis(HWND window) : m_window(window) {}
  WhatsThis(const WhatsThis&) = delete;
  WhatsThis& operator=(const WhatsThis&) = delete;
  ~WhatsThis() { Leave(); }

  void SetTopicHelp(TopicHelp show) { m_show = std::move(show); }

  void Enter();
  bool IsOn() const { return m_isOn; }

  /// The window's mouse while the mode is on; nothing for everything else.
  std::optional<LRESULT> OnMessage(UINT message, LPARAM lParam);

  /// Escape ends the mode.
  bool Translate(const MSG& message);

  /// The topic of the control with the keyboard, or the mode when it has none.
  void ExplainFocus();

  /// The topic of what is there on the screen. Returns whether there is one.
  bool ExplainAt(POINT at);

 private:
  void Leave();

  HWND m_window;
  TopicHelp m_show;
  bool m_isOn = false;
};

/// A message by which a window that shows several controls is asked for the help context of the one at a point of the
/// screen, which lParam points to.
UINT HelpIdAtMessage();

}  // namespace dayvane::widgets
