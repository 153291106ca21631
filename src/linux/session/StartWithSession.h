// SPDX-License-Identifier: MIT
#pragma once

#include "app/Application.h"
#include "linux/activation/Activation.h"
#include "linux/activation/BusApplication.h"
#include "linux/session/Autostart.h"

namespace dayvane::session {

/// The commands on the bus that have the program start with the user's session or not: a switch, and two for menus
/// that cannot show one. The user sees what came of it in a notification, and a failure in the usual report.
class StartWithSession {
 public:
  /// All must outlive this.
  StartWithSession(activation::BusApplication& bus, activation::Activation& activation, Autostart autostart);

  /// From here on failures can be reported. Entries of old names are taken over.
  void Serve(Application& application);

 private:
  bool IsOn() const;
  void Set(bool isOn);

  activation::BusApplication& m_bus;
  Autostart m_autostart;
  Application* m_application = nullptr;
};

}  // namespace dayvane::session
