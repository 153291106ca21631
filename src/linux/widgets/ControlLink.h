// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include "controls/Signal.h"

class QWidget;

namespace dayvane::controls {
class Control;
}

namespace dayvane::widgets {

/// Property of a widget that holds its control's help context, 0 for none.
inline constexpr const char* kHelpIdProperty = "helpContextId";

/// Ties a widget to its control for as long as it lives: shows what every control has (name, visible, enabled, help),
/// and calls the presenter's own `show` when some state is new. The control's place is its container's business.
class ControlLink {
 public:
  ControlLink(controls::Control& control, QWidget& widget, std::function<void()> show);
  ControlLink(const ControlLink&) = delete;
  ControlLink& operator=(const ControlLink&) = delete;
  ~ControlLink() = default;

  /// Shows everything anew.
  void Show();

 private:
  const controls::Control& m_control;
  QWidget& m_widget;
  std::function<void()> m_show;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
