// SPDX-License-Identifier: MIT
#include "linux/activation/BusApplication.h"

#include <cstring>
#include <utility>

#include "linux/activation/ApplicationId.h"
#include "linux/glib/ErrorNet.h"

namespace dayvane::activation {

namespace {

using Act = std::function<void()>;

constexpr const char* kToken = "dayvane-token";
constexpr std::size_t kLongestToken = 256;  ///< those of the window systems have less than a hundred characters

using Turn = std::function<void(bool wanted)>;

void RunCommand(GSimpleAction* /*action*/, GVariant* /*parameter*/, gpointer act) {
  CatchErrors(kHidingShowingSuspendingResuming, *static_cast<const Act*>(act));
}

void TurnSwitch(GSimpleAction* /*action*/, GVariant* wanted, gpointer turn) {
  CatchErrors(kHidingShowingSuspendingResuming,
              [&] { (*static_cast<const Turn*>(turn))(g_variant_get_boolean(wanted) != FALSE); });
}

template <class Type>
void FreeWithAction(gpointer data, GClosure* /*closure*/) {
  delete static_cast<Type*>(data);
}

/// The callers' right to have a window in the front. It comes beside the call, where only a class derived from the
/// application's can read it.
void KeepToken(GApplication* application, GVariant* circumstances) {
  const char* token = "";
  for (const char* name : {"desktop-startup-id", "activation-token"})
    g_variant_lookup(circumstances, name, "&s", &token);
  const bool isFine = std::strlen(token) <= kLongestToken;
  g_object_set_data_full(G_OBJECT(application), kToken, g_strdup(isFine ? token : ""), g_free);
}

void InitClass(gpointer type, gpointer /*data*/) {
  static_cast<GApplicationClass*>(type)->before_emit = KeepToken;
}

GType TypeOfApplication() {
  static const GType type = [] {
    GTypeQuery parent{};
    g_type_query(G_TYPE_APPLICATION, &parent);
    return g_type_register_static_simple(G_TYPE_APPLICATION, "DayvaneBusApplication", parent.class_size, InitClass,
                                         parent.instance_size, nullptr, static_cast<GTypeFlags>(0));
  }();
  return type;
}

void WasActivated(GApplication* application, gpointer self) {
  const auto* token = static_cast<const char*>(g_object_get_data(G_OBJECT(application), kToken));
  CatchErrors(kHidingShowingSuspendingResuming,
              [&] { static_cast<BusApplication*>(self)->Activated.Raise(token != nullptr ? token : ""); });
}

}  // namespace

void BusApplication::Register(const ReportEvent& reportEvent) {
  m_application.reset(G_APPLICATION(g_object_new(TypeOfApplication(), "application-id", kApplicationId, nullptr)));
  glib::Failure failure;
  const bool isRegistered = g_application_register(m_application.get(), nullptr, failure.Slot()) != FALSE;
  const bool isTaken = isRegistered && g_application_get_is_remote(m_application.get()) != FALSE;
  if (!isRegistered || isTaken)
    reportEvent("Launchers cannot call the program: " + (isTaken ? "another one has its name" : failure.Message()));
  GDBusConnection* connection = isRegistered ? g_application_get_dbus_connection(m_application.get()) : nullptr;
  // By default the program would be ended when the bus goes. The record must go on.
  if (connection != nullptr) g_dbus_connection_set_exit_on_close(connection, FALSE);
  if (connection == nullptr || isTaken) return m_application.reset();
  g_signal_connect(m_application.get(), "activate", G_CALLBACK(WasActivated), this);
}

BusApplication::~BusApplication() {
  if (!IsOnBus()) return;
  const glib::Object<GDBusConnection> connection(G_DBUS_CONNECTION(g_object_ref(Connection())));
  m_application.reset();
  // The application has said so already, but does not wait until the bus has heard it.
  constexpr int kPatience = 1000;  // milliseconds
  const glib::Variant released(g_dbus_connection_call_sync(
      connection.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ReleaseName",
      g_variant_new("(s)", kApplicationId), nullptr, G_DBUS_CALL_FLAGS_NONE, kPatience, nullptr, nullptr));
}

GDBusConnection* BusApplication::Connection() const {
  return m_application ? g_application_get_dbus_connection(m_application.get()) : nullptr;
}

void BusApplication::Notify(const char* title, const char* text) const {
  if (!IsOnBus()) return;
  // Not the application's own notifications: what serves them in GLib frees itself without end when they outlive it.
  constexpr guint kNew = 0;
  constexpr gint kUsualTime = -1;
  GVariantBuilder hints;
  g_variant_builder_init(&hints, G_VARIANT_TYPE_VARDICT);
  g_variant_builder_add(&hints, "{sv}", "desktop-entry", g_variant_new_string(kApplicationId));
  g_dbus_connection_call(
      Connection(), "org.freedesktop.Notifications", "/org/freedesktop/Notifications", "org.freedesktop.Notifications",
      "Notify", g_variant_new("(susssasa{sv}i)", "Dayvane", kNew, "dayvane", title, text, nullptr, &hints, kUsualTime),
      nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr, nullptr);
}

void BusApplication::AddCommand(const std::string& name, std::function<void()> act) {
  if (!m_application) return;
  const glib::Object<GSimpleAction> action(g_simple_action_new(name.c_str(), nullptr));
  Add(action.get(), "activate", G_CALLBACK(RunCommand), std::make_unique<Act>(std::move(act)).release(),
      FreeWithAction<Act>);
}

void BusApplication::SetCommandEnabled(const std::string& name, bool isEnabled) {
  if (GSimpleAction* action = Find(name)) g_simple_action_set_enabled(action, isEnabled ? TRUE : FALSE);
}

void BusApplication::AddSwitch(const std::string& name, bool isOn, std::function<void(bool)> set) {
  if (!m_application) return;
  const glib::Object<GSimpleAction> action(
      g_simple_action_new_stateful(name.c_str(), nullptr, g_variant_new_boolean(isOn ? TRUE : FALSE)));
  Add(action.get(), "change-state", G_CALLBACK(TurnSwitch), std::make_unique<Turn>(std::move(set)).release(),
      FreeWithAction<Turn>);
}

void BusApplication::SetSwitch(const std::string& name, bool isOn) {
  if (GSimpleAction* action = Find(name)) g_simple_action_set_state(action, g_variant_new_boolean(isOn ? TRUE : FALSE));
}

GSimpleAction* BusApplication::Find(const std::string& name) const {
  if (!m_application) return nullptr;
  return G_SIMPLE_ACTION(g_action_map_lookup_action(G_ACTION_MAP(m_application.get()), name.c_str()));
}

void BusApplication::Add(GSimpleAction* action, const char* signal, GCallback callback, gpointer data,
                         GClosureNotify freeData) {
  g_signal_connect_data(action, signal, callback, data, freeData, static_cast<GConnectFlags>(0));
  g_action_map_add_action(G_ACTION_MAP(m_application.get()), G_ACTION(action));
}

}  // namespace dayvane::activation
