// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "tests/linux/BusService.h"

namespace dayvane::testing {

/// The application "Silent" of the tests' desktop, started and hanging: it takes what it is asked on the bus and never
/// answers.
class HangingApplication {
 public:
  explicit HangingApplication(const PrivateBus& bus)
      : m_service(bus, "org.example.Silent", "/org/example/Silent",
                  "<node><interface name='org.freedesktop.Application'>"
                  "<method name='Activate'><arg type='a{sv}' direction='in'/></method>"
                  "<method name='Open'><arg type='as' direction='in'/><arg type='a{sv}' direction='in'/></method>"
                  "</interface></node>",
                  [this](const std::string&, GVariant*, GDBusMethodInvocation* call) { m_calls.emplace_back(call); }) {}

  /// How often it was asked to open something.
  int Asked() const { return static_cast<int>(m_calls.size()); }

 private:
  std::vector<glib::Object<GDBusMethodInvocation>> m_calls;  ///< kept, because letting one go answers it
  BusService m_service;
};

}  // namespace dayvane::testing
