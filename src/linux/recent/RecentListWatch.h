// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <functional>
#include <gio/gio.h>
#include <memory>
#include <string>

namespace dayvane::recent {

/// Reports soon after the list of recent documents has changed, so that an entry is seen before another program
/// overwrites it. Needs a GLib event loop, as Qt's is on Linux. The list and its folder need not exist yet.
///
/// It may miss changes (some network drives report none); the program's own poll finds those.
class RecentListWatch {
 public:
  /// `changed` is called from the event loop, once for all changes within the time that a program takes to write.
  RecentListWatch(const std::string& listPath, std::function<void()> changed);
  RecentListWatch(const RecentListWatch&) = delete;
  RecentListWatch& operator=(const RecentListWatch&) = delete;
  ~RecentListWatch();

 private:
  struct CancelAndRelease {
    void operator()(GFileMonitor* monitor) const;
  };

  static void OnEvent(GFileMonitor*, GFile*, GFile*, GFileMonitorEvent, gpointer watch);

  QTimer m_delay;
  std::unique_ptr<GFileMonitor, CancelAndRelease> m_monitor;  ///< null where the system has no more
};

}  // namespace dayvane::recent
