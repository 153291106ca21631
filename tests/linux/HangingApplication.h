// SPDX-License-Identifier: MIT
#pragma once

#include "tests/linux/FakeFileManager.h"

namespace dayvane::testing {

/// The application "Silent" of the tests' desktop, started and hanging: it takes what it is asked on the bus and never
/// answers.
class HangingApplication {
 public:
  explicit HangingApplication(const PrivateBus& bus);
  HangingApplication(const HangingApplication&) = delete;
  HangingApplication& operator=(const HangingApplication&) = delete;
  ~HangingApplication();

  /// How often it was asked to open something.
  int Asked() const { return static_cast<int>(m_calls.size()); }

 private:
  static void MethodCalled(GDBusConnection* bus, const char* sender, const char* path, const char* interface,
                           const char* method, GVariant* arguments, GDBusMethodInvocation* call, gpointer self);

  glib::Object<GDBusConnection> m_connection;
  guint m_registration = 0;
  std::vector<glib::Object<GDBusMethodInvocation>> m_calls;  ///< kept, because letting one go answers it
};

}  // namespace dayvane::testing
