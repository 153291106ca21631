// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "linux/glib/BusObject.h"

namespace dayvane::widgets {

/// Watches for a panel that shows status notifier items: a watcher on the session bus (org.kde.StatusNotifierWatcher)
/// that has a host.
class StatusNotifierWatch {
 public:
  explicit StatusNotifierWatch(std::function<void()> changed);

  bool HasHost() const { return m_hasHost; }

 private:
  void Ask();
  void SetHasHost(bool hasHost);

  std::function<void()> m_changed;
  bool m_hasHost = false;
  glib::BusObject m_watcher;
};

}  // namespace dayvane::widgets
