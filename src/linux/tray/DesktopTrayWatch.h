// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <optional>

#include "linux/tray/StatusNotifierWatch.h"
#include "linux/tray/TrayWatch.h"

namespace dayvane::widgets {

/// The notification areas of Linux: panels that show status notifier items, and on X11 the older trays that embed
/// windows.
///
/// Qt settles once, at the first use of its tray icon, which of the two it serves; an icon made before a status
/// notifier host is there is never shown by one. So no icon may be made before there is a tray, and from then on
/// only the kind that was there first counts.
class DesktopTrayWatch : public TrayWatch {
 public:
  DesktopTrayWatch();

  bool IsThere() const override { return m_isThere; }

 private:
  enum class Kind { StatusNotifier, Embedding };

  void Check();
  bool IsThere(Kind kind) const;

  StatusNotifierWatch m_notifiers;
  QTimer m_timer;
  std::optional<Kind> m_kind;
  bool m_isThere = false;
};

}  // namespace dayvane::widgets
