// SPDX-License-Identifier: MIT
#include "linux/launch/StartApplication.h"

#include <gio/gdesktopappinfo.h>
#include <memory>
#include <unistd.h>

#include "linux/glib/ErrorNet.h"

namespace dayvane::launch {

namespace {

/// Runs in the new process before the application does: system calls alone are safe there.
void EnterFolder(gpointer folder) {
  [[maybe_unused]] const int entered = chdir(static_cast<const char*>(folder));
}

struct PendingStart {
  std::string name;
  glib::Object<GCancellable> pending;
  ReportEvent reportEvent;
};

void StartAnswered(GObject* application, GAsyncResult* result, gpointer data) {
  const std::unique_ptr<PendingStart> start(static_cast<PendingStart*>(data));
  glib::Failure failure;
  if (g_app_info_launch_uris_finish(G_APP_INFO(application), result, failure.Slot())) return;
  CatchErrors(kOpeningDocument, [&] {
    if (!g_cancellable_is_cancelled(start->pending.get()))
      start->reportEvent("\"" + start->name + "\" could not be started: " + failure.Message());
  });
}

struct FreeList {
  void operator()(GList* list) const { g_list_free(list); }
};

}  // namespace

glib::Object<GDBusConnection> SessionBus() {
  glib::Object<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (!bus) return nullptr;
  g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
  // GIO shares one connection, and hands a dead one out for as long as anyone holds it.
  if (g_dbus_connection_is_closed(bus.get())) return nullptr;
  return bus;
}

bool StartApplication(GAppInfo* application, const std::string& uri, const std::string& workingFolder,
                      GCancellable* pending, const ReportEvent& reportEvent) {
  // GIO connects to the bus when it starts an application, and shares the connection.
  const auto bus = SessionBus();
  std::string address = uri;
  const std::unique_ptr<GList, FreeList> uris(address.empty() ? nullptr : g_list_append(nullptr, address.data()));
  auto* desktop = G_DESKTOP_APP_INFO(application);
  if (bus && g_desktop_app_info_get_boolean(desktop, "DBusActivatable")) {
    glib::Object<GCancellable> own(G_CANCELLABLE(g_object_ref(pending)));
    auto start =
        std::make_unique<PendingStart>(PendingStart{g_app_info_get_name(application), std::move(own), reportEvent});
    g_app_info_launch_uris_async(application, uris.get(), nullptr, nullptr, StartAnswered, start.release());
    return true;
  }
  const bool enters = !workingFolder.empty() && !g_desktop_app_info_has_key(desktop, "Path");
  std::string folder = workingFolder;
  glib::Failure failure;
  return g_desktop_app_info_launch_uris_as_manager(desktop, uris.get(), nullptr, G_SPAWN_SEARCH_PATH,
                                                   enters ? EnterFolder : nullptr, folder.data(), nullptr, nullptr,
                                                   failure.Slot()) != 0;
}

}  // namespace dayvane::launch
