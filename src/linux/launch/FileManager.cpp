// SPDX-License-Identifier: MIT
#include "linux/launch/FileManager.h"

#include <cstring>
#include <gio/gdesktopappinfo.h>
#include <memory>

#include "linux/glib/ErrorNet.h"

namespace dayvane::launch {

namespace {

constexpr const char* kFileManager = "org.freedesktop.FileManager1";
constexpr const char* kFileManagerPath = "/org/freedesktop/FileManager1";
constexpr const char* kFolderType = "inode/directory";
constexpr int kBusPatience = 1000;           // milliseconds that the bus itself has for a question about its names
constexpr int kFileManagerPatience = 60000;  // a file manager may have to be started first

bool IsFileManager(GAppInfo* application) {
  const char* categories = g_desktop_app_info_get_categories(G_DESKTOP_APP_INFO(application));
  return categories != nullptr && std::strstr(categories, "FileManager") != nullptr;
}

/// Picture viewers and editors claim folders too, and the desktop's default is just the first by name when the user
/// chose none: a file manager is taken if there is any.
glib::Object<GAppInfo> ApplicationForFolders() {
  glib::Object<GAppInfo> byDefault(g_app_info_get_default_for_type(kFolderType, FALSE));
  if (byDefault && IsFileManager(byDefault.get())) return byDefault;
  const glib::ObjectList all(g_app_info_get_all_for_type(kFolderType));
  for (GList* item = all.get(); item != nullptr; item = item->next) {
    auto* application = static_cast<GAppInfo*>(item->data);
    if (IsFileManager(application)) return glib::Object<GAppInfo>(G_APP_INFO(g_object_ref(application)));
  }
  return byDefault;
}

glib::Variant AskBus(GDBusConnection* bus, const char* question, GVariant* arguments, const char* answer) {
  return glib::Variant(g_dbus_connection_call_sync(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                                                   "org.freedesktop.DBus", question, arguments, G_VARIANT_TYPE(answer),
                                                   G_DBUS_CALL_FLAGS_NONE, kBusPatience, nullptr, nullptr));
}

/// Whether the file manager is on the bus or can be called there.
bool IsOnBus(GDBusConnection* bus) {
  gboolean running = FALSE;
  const auto owned = AskBus(bus, "NameHasOwner", g_variant_new("(s)", kFileManager), "(b)");
  if (owned) g_variant_get(owned.get(), "(b)", &running);
  if (running) return true;
  const auto answer = AskBus(bus, "ListActivatableNames", nullptr, "(as)");
  if (!answer) return false;
  char** names = nullptr;
  g_variant_get(answer.get(), "(^as)", &names);
  const glib::Texts owner(names);
  return g_strv_contains(names, kFileManager) != 0;
}

/// A folder that the file manager on the bus was asked to show.
struct PendingFolder {
  std::string folder;
  std::string uri;
  glib::Object<GCancellable> pending;
  ReportEvent reportEvent;
};

void ShowFoldersAnswered(GObject* bus, GAsyncResult* result, gpointer data) {
  const std::unique_ptr<PendingFolder> asked(static_cast<PendingFolder*>(data));
  glib::Failure failure;
  const glib::Variant answer(g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, failure.Slot()));
  if (answer || failure.Is(G_IO_ERROR, G_IO_ERROR_CANCELLED)) return;
  CatchErrors(kOpeningFolder, [&] {
    const auto application = ApplicationForFolders();
    if (application && StartApplication(application.get(), asked->uri, {}, asked->pending.get(), asked->reportEvent))
      return;
    asked->reportEvent("The folder could not be shown: " + asked->folder + ": " + failure.Message());
  });
}

}  // namespace

bool FileManager::Show(const std::string& nativeFolder) const {
  const glib::Text uri(g_filename_to_uri(nativeFolder.c_str(), nullptr, nullptr));
  if (!uri) return false;
  const auto bus = SessionBus();
  if (!bus || !IsOnBus(bus.get())) {
    const auto application = ApplicationForFolders();
    return application && StartApplication(application.get(), uri.get(), {}, m_pending, m_reportEvent);
  }
  const char* const folders[] = {uri.get(), nullptr};
  auto asked = std::make_unique<PendingFolder>(PendingFolder{
      nativeFolder, uri.get(), glib::Object<GCancellable>(G_CANCELLABLE(g_object_ref(m_pending))), m_reportEvent});
  g_dbus_connection_call(bus.get(), kFileManager, kFileManagerPath, kFileManager, "ShowFolders",
                         g_variant_new("(^ass)", folders, ""), nullptr, G_DBUS_CALL_FLAGS_NONE, kFileManagerPatience,
                         m_pending, ShowFoldersAnswered, asked.release());
  return true;
}

}  // namespace dayvane::launch
