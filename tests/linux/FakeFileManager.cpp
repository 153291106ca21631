// SPDX-License-Identifier: MIT
#include "tests/linux/FakeFileManager.h"

#include <cstdlib>
#include <stdexcept>

#include "tests/linux/MainLoop.h"

namespace dayvane::testing {

namespace {

constexpr const char* kName = "org.freedesktop.FileManager1";
constexpr const char* kInterface =
    "<node><interface name='org.freedesktop.FileManager1'><method name='ShowFolders'>"
    "<arg type='as' name='URIs' direction='in'/><arg type='s' name='StartupId' direction='in'/>"
    "</method></interface></node>";

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

FakeFileManager::FakeFileManager(const PrivateBus& bus) {
  constexpr auto kFlags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                            G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
  m_connection.reset(g_dbus_connection_new_for_address_sync(bus.Address().c_str(), kFlags, nullptr, nullptr, nullptr));
  if (!m_connection) throw std::runtime_error("no bus");
  g_dbus_connection_set_exit_on_close(m_connection.get(), FALSE);
  const std::unique_ptr<GDBusNodeInfo, UnrefInterface> info(g_dbus_node_info_new_for_xml(kInterface, nullptr));
  static constexpr GDBusInterfaceVTable kMethods{MethodCalled, nullptr, nullptr, {}};
  m_registration = g_dbus_connection_register_object(m_connection.get(), "/org/freedesktop/FileManager1",
                                                     info->interfaces[0], &kMethods, this, nullptr, nullptr);
  const glib::Variant named(g_dbus_connection_call_sync(
      m_connection.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
      g_variant_new("(su)", kName, 0U), nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr));
  if (m_registration == 0 || !named) throw std::runtime_error("no name on the bus");
}

FakeFileManager::~FakeFileManager() {
  // Its last answers reach those who asked.
  g_dbus_connection_flush_sync(m_connection.get(), nullptr, nullptr);
  g_dbus_connection_unregister_object(m_connection.get(), m_registration);
}

void FakeFileManager::MethodCalled(GDBusConnection* /*bus*/, const char* /*sender*/, const char* /*path*/,
                                   const char* /*interface*/, const char* /*method*/, GVariant* arguments,
                                   GDBusMethodInvocation* call, gpointer self) {
  auto* manager = static_cast<FakeFileManager*>(self);
  ++manager->m_asked;
  if (manager->m_fails) {
    g_dbus_method_invocation_return_error_literal(call, G_IO_ERROR, G_IO_ERROR_FAILED, "no");
    return;
  }
  char** folders = nullptr;
  g_variant_get(arguments, "(^ass)", &folders, nullptr);
  const glib::Texts owner(folders);
  for (char** folder = folders; *folder != nullptr; ++folder) manager->m_shown.emplace_back(*folder);
  g_dbus_method_invocation_return_value(call, nullptr);
}

}  // namespace dayvane::testing
