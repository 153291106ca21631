// SPDX-License-Identifier: MIT
#include "tests/linux/BusCaller.h"

#include <stdexcept>

#include "tests/linux/MainLoop.h"

namespace dayvane::testing {

namespace {

void Answered(GObject* /*connection*/, GAsyncResult* result, gpointer answer) {
  *static_cast<GAsyncResult**>(answer) = G_ASYNC_RESULT(g_object_ref(result));
}

}  // namespace

BusCaller::BusCaller(const PrivateBus& bus) {
  constexpr auto kFlags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                            G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
  m_connection.reset(g_dbus_connection_new_for_address_sync(bus.Address().c_str(), kFlags, nullptr, nullptr, nullptr));
  if (!m_connection) throw std::runtime_error("no bus");
  g_dbus_connection_set_exit_on_close(m_connection.get(), FALSE);
}

glib::Variant BusCaller::Call(const std::string& name, const std::string& path, const std::string& method,
                              GVariant* arguments) {
  const std::size_t dot = method.rfind('.');
  GAsyncResult* result = nullptr;
  g_dbus_connection_call(m_connection.get(), name.c_str(), path.c_str(), method.substr(0, dot).c_str(),
                         method.substr(dot + 1).c_str(), arguments, nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, -1,
                         nullptr, Answered, static_cast<gpointer>(&result));
  if (!MainLoopRunsUntil([&] { return result != nullptr; })) throw std::runtime_error("no answer to " + method);
  const glib::Object<GAsyncResult> held(result);
  glib::Failure failure;
  glib::Variant answer(g_dbus_connection_call_finish(m_connection.get(), result, failure.Slot()));
  m_failure = failure.Message();
  return answer;
}

bool BusCaller::IsOwned(const std::string& name) {
  const auto answer = Call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus.NameHasOwner",
                           g_variant_new("(s)", name.c_str()));
  gboolean isOwned = FALSE;
  if (answer) g_variant_get(answer.get(), "(b)", &isOwned);
  return isOwned != FALSE;
}

}  // namespace dayvane::testing
