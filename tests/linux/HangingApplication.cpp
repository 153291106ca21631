// SPDX-License-Identifier: MIT
#include "tests/linux/HangingApplication.h"

#include <memory>
#include <stdexcept>

namespace dayvane::testing {

namespace {

constexpr const char* kInterface =
    "<node><interface name='org.freedesktop.Application'>"
    "<method name='Activate'><arg type='a{sv}' direction='in'/></method>"
    "<method name='Open'><arg type='as' direction='in'/><arg type='a{sv}' direction='in'/></method>"
    "</interface></node>";

struct UnrefInterface {
  void operator()(GDBusNodeInfo* info) const { g_dbus_node_info_unref(info); }
};

}  // namespace

HangingApplication::HangingApplication(const PrivateBus& bus) {
  constexpr auto kFlags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                            G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
  m_connection.reset(g_dbus_connection_new_for_address_sync(bus.Address().c_str(), kFlags, nullptr, nullptr, nullptr));
  if (!m_connection) throw std::runtime_error("no bus");
  g_dbus_connection_set_exit_on_close(m_connection.get(), FALSE);
  const std::unique_ptr<GDBusNodeInfo, UnrefInterface> info(g_dbus_node_info_new_for_xml(kInterface, nullptr));
  static constexpr GDBusInterfaceVTable kMethods{MethodCalled, nullptr, nullptr, {}};
  m_registration = g_dbus_connection_register_object(m_connection.get(), "/org/example/Silent", info->interfaces[0],
                                                     &kMethods, this, nullptr, nullptr);
  const glib::Variant named(g_dbus_connection_call_sync(
      m_connection.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
      g_variant_new("(su)", "org.example.Silent", 0U), nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr));
  if (m_registration == 0 || !named) throw std::runtime_error("no name on the bus");
}

HangingApplication::~HangingApplication() {
  g_dbus_connection_unregister_object(m_connection.get(), m_registration);
}

void HangingApplication::MethodCalled(GDBusConnection* /*bus*/, const char* /*sender*/, const char* /*path*/,
                                      const char* /*interface*/, const char* /*method*/, GVariant* /*arguments*/,
                                      GDBusMethodInvocation* call, gpointer self) {
  static_cast<HangingApplication*>(self)->m_calls.emplace_back(call);
}

}  // namespace dayvane::testing
