// SPDX-License-Identifier: MIT
#pragma once

#include "linux/activation/BusApplication.h"
#include "linux/glib/BusObject.h"
#include "linux/tray/LauncherWatch.h"
#include "platform/Registry.h"

namespace dayvane::activation {

/// GNOME's dash and overview, which have no tray but an icon for each program that has a menu entry: a click on ours
/// brings the window back, as long as the program can be called on the bus.
class GnomeShell : public widgets::LauncherWatch {
 public:
  /// That the user was told is kept in the settings. Both must outlive this.
  GnomeShell(BusApplication& bus, platform::Registry& registry);

  bool Serves() const override;
  void TellWayBack() override;

 private:
  void SetRunning(bool isRunning);
  bool WasTold();

  BusApplication& m_bus;
  platform::Registry& m_registry;
  bool m_isRunning = false;
  bool m_wasTold = false;  ///< in this run, where the settings cannot keep it
  glib::BusObject m_shell;
};

}  // namespace dayvane::activation
