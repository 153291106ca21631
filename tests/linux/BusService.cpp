// SPDX-License-Identifier: MIT
#include "tests/linux/BusService.h"

#include <cstdlib>
#include <stdexcept>

#include "tests/linux/MainLoop.h"

namespace dayvane::testing {

namespace {

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

struct UnrefInterface {
  void operator()(GDBusNodeInfo* info) const { g_dbus_node_info_unref(info); }
};

}  // namespace

PrivateBus::PrivateBus()
    : m_bus(g_test_dbus_new(G_TEST_DBUS_NONE)),
      m_addressBefore(Variable("DBUS_SESSION_BUS_ADDRESS")),
      m_runtimeFolderBefore(Variable("XDG_RUNTIME_DIR")) {
  g_test_dbus_up(m_bus.get());
  setenv("XDG_RUNTIME_DIR", m_runtimeFolderBefore.c_str(), 1);
}

PrivateBus::~PrivateBus() {
  // GIO hands the old connection out for as long as anyone holds it.
  gpointer connection = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
  if (connection != nullptr) {
    g_dbus_connection_set_exit_on_close(G_DBUS_CONNECTION(connection), FALSE);
    g_object_add_weak_pointer(G_OBJECT(connection), &connection);
    g_object_unref(connection);
  }
  Kill();
  MainLoopRunsUntil([&] { return connection == nullptr; });
  setenv("DBUS_SESSION_BUS_ADDRESS", m_addressBefore.c_str(), 1);
}

void PrivateBus::Kill() {
  if (m_running) g_test_dbus_stop(m_bus.get());
  m_running = false;
}

std::string PrivateBus::Address() const {
  return g_test_dbus_get_bus_address(m_bus.get());
}

BusService::BusService(const PrivateBus& bus, const std::string& name, const std::string& path,
                       const std::string& introspection, Method method)
    : m_method(std::move(method)) {
  constexpr auto kFlags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                            G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
  m_connection.reset(g_dbus_connection_new_for_address_sync(bus.Address().c_str(), kFlags, nullptr, nullptr, nullptr));
  if (!m_connection) throw std::runtime_error("no bus");
  g_dbus_connection_set_exit_on_close(m_connection.get(), FALSE);
  const std::unique_ptr<GDBusNodeInfo, UnrefInterface> info(
      g_dbus_node_info_new_for_xml(introspection.c_str(), nullptr));
  static constexpr GDBusInterfaceVTable kMethods{MethodCalled, nullptr, nullptr, {}};
  m_registration = g_dbus_connection_register_object(m_connection.get(), path.c_str(), info->interfaces[0], &kMethods,
                                                     this, nullptr, nullptr);
  const glib::Variant named(g_dbus_connection_call_sync(
      m_connection.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
      g_variant_new("(su)", name.c_str(), 0U), nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr));
  if (m_registration == 0 || !named) throw std::runtime_error("no name on the bus");
}

BusService::~BusService() {
  // Its last answers reach those who asked.
  g_dbus_connection_flush_sync(m_connection.get(), nullptr, nullptr);
  g_dbus_connection_unregister_object(m_connection.get(), m_registration);
}

void BusService::MethodCalled(GDBusConnection* /*bus*/, const char* /*sender*/, const char* /*path*/,
                              const char* /*interface*/, const char* method, GVariant* arguments,
                              GDBusMethodInvocation* call, gpointer self) {
  static_cast<BusService*>(self)->m_method(method, arguments, call);
}

}  // namespace dayvane::testing
