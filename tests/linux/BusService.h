// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "linux/glib/GlibHandles.h"

namespace dayvane::testing {

/// A message bus with nobody on it, which is the user's own for as long as it lives. The tests' desktop has none
/// otherwise.
class PrivateBus {
 public:
  PrivateBus();
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;
  ~PrivateBus();

  /// Ends the bus as a crash would.
  void Kill();

  std::string Address() const;

 private:
  glib::Object<GTestDBus> m_bus;
  std::string m_addressBefore;
  std::string m_runtimeFolderBefore;
  bool m_running = true;
};

/// Someone on the bus, with one object of one interface, who is called from the main loop.
class BusService {
 public:
  /// Answers a call by one of g_dbus_method_invocation_return_…, at once or never.
  using Method = std::function<void(const std::string& name, GVariant* arguments, GDBusMethodInvocation* call)>;

  /// `introspection` is the interface as the bus's XML describes it.
  BusService(const PrivateBus& bus, const std::string& name, const std::string& path, const std::string& introspection,
             Method method);
  BusService(const BusService&) = delete;
  BusService& operator=(const BusService&) = delete;
  ~BusService();

 private:
  static void MethodCalled(GDBusConnection* bus, const char* sender, const char* path, const char* interface,
                           const char* method, GVariant* arguments, GDBusMethodInvocation* call, gpointer self);

  Method m_method;
  glib::Object<GDBusConnection> m_connection;
  guint m_registration = 0;
};

}  // namespace dayvane::testing
