// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "linux/glib/GlibHandles.h"
#include "tests/linux/BusService.h"

namespace dayvane::testing {

/// Another program on the bus, which calls this one. The main loop runs while it waits for an answer.
class BusCaller {
 public:
  explicit BusCaller(const PrivateBus& bus);

  /// The answer of a method "interface.Method"; nothing when it failed. Takes over floating arguments.
  glib::Variant Call(const std::string& name, const std::string& path, const std::string& method,
                     GVariant* arguments = nullptr);

  bool IsOwned(const std::string& name);

  /// What the failed call was told.
  std::string Failure() const { return m_failure; }

 private:
  glib::Object<GDBusConnection> m_connection;
  std::string m_failure;
};

}  // namespace dayvane::testing
