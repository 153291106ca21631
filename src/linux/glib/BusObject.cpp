// SPDX-License-Identifier: MIT
#include "linux/glib/BusObject.h"

#include <utility>

#include "linux/glib/ErrorNet.h"

namespace dayvane::glib {

namespace {

using Answer = std::function<void(GVariant*)>;

// Objects on the bus are those of the tray.
constexpr StringId kPhrase = kHidingShowingSuspendingResuming;

/// By default a program is ended when the connection that it shares with all of GLib closes. The record must go on.
void OutliveBus(GDBusConnection* connection) {
  if (connection != nullptr) g_dbus_connection_set_exit_on_close(connection, FALSE);
}

}  // namespace

BusObject::BusObject(const Address& address, Start start, Events events)
    : m_address(address), m_events(std::move(events)), m_cancellable(g_cancellable_new()) {
  const auto flags = start == Start::StartProgram ? G_BUS_NAME_WATCHER_FLAGS_AUTO_START : G_BUS_NAME_WATCHER_FLAGS_NONE;
  m_nameWatch = g_bus_watch_name(G_BUS_TYPE_SESSION, address.name, flags, &BusObject::Appeared, &BusObject::Vanished,
                                 this, nullptr);
}

BusObject::~BusObject() {
  Unsubscribe();
  g_cancellable_cancel(m_cancellable.get());
  g_bus_unwatch_name(m_nameWatch);
}

void BusObject::Call(const char* interface, const char* method, GVariant* arguments, Answer answered) {
  const glib::Variant held(g_variant_ref_sink(arguments));
  if (m_connection == nullptr) return answered(nullptr);
  auto kept = std::make_unique<Answer>(std::move(answered));
  g_dbus_connection_call(m_connection.get(), m_address.name, m_address.path, interface, method, held.get(), nullptr,
                         G_DBUS_CALL_FLAGS_NONE, -1, m_cancellable.get(), &BusObject::Answered, kept.release());
}

void BusObject::Appeared(GDBusConnection* connection, const char*, const char*, gpointer self) {
  OutliveBus(connection);
  auto& object = *static_cast<BusObject*>(self);
  object.Unsubscribe();
  object.m_connection.reset(G_DBUS_CONNECTION(g_object_ref(connection)));
  object.m_subscription = g_dbus_connection_signal_subscribe(
      connection, object.m_address.name, object.m_address.interface, nullptr, object.m_address.path, nullptr,
      G_DBUS_SIGNAL_FLAGS_NONE, &BusObject::Signalled, self, nullptr);
  CatchErrors(kPhrase, object.m_events.appeared);
}

void BusObject::Vanished(GDBusConnection* connection, const char*, gpointer self) {
  OutliveBus(connection);
  static_cast<BusObject*>(self)->Unsubscribe();
  CatchErrors(kPhrase, static_cast<BusObject*>(self)->m_events.vanished);
}

void BusObject::Signalled(GDBusConnection*, const char*, const char*, const char*, const char* signal,
                          GVariant* arguments, gpointer self) {
  CatchErrors(kPhrase, [&] { static_cast<BusObject*>(self)->m_events.signalled(signal, arguments); });
}

void BusObject::Answered(GObject* connection, GAsyncResult* result, gpointer answered) {
  const std::unique_ptr<Answer> answer(static_cast<Answer*>(answered));
  glib::Failure failure;
  const glib::Variant results(g_dbus_connection_call_finish(G_DBUS_CONNECTION(connection), result, failure.Slot()));
  // A call that was cancelled belongs to an object that is gone.
  if (!failure.Is(G_IO_ERROR, G_IO_ERROR_CANCELLED)) CatchErrors(kPhrase, [&] { (*answer)(results.get()); });
}

void BusObject::Unsubscribe() {
  if (m_connection != nullptr) g_dbus_connection_signal_unsubscribe(m_connection.get(), m_subscription);
  m_connection.reset();
}

}  // namespace dayvane::glib
