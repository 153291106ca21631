// SPDX-License-Identifier: MIT
#include "tests/linux/FakeFileManager.h"

namespace dayvane::testing {

FakeFileManager::FakeFileManager(const PrivateBus& bus)
    : m_service(bus, "org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
                "<node><interface name='org.freedesktop.FileManager1'><method name='ShowFolders'>"
                "<arg type='as' name='URIs' direction='in'/><arg type='s' name='StartupId' direction='in'/>"
                "</method></interface></node>",
                [this](const std::string&, GVariant* arguments, GDBusMethodInvocation* call) {
                  ShowFolders(arguments, call);
                }) {}

void FakeFileManager::ShowFolders(GVariant* arguments, GDBusMethodInvocation* call) {
  ++m_asked;
  if (m_fails) {
    g_dbus_method_invocation_return_error_literal(call, G_IO_ERROR, G_IO_ERROR_FAILED, "no");
    return;
  }
  char** folders = nullptr;
  g_variant_get(arguments, "(^ass)", &folders, nullptr);
  const glib::Texts owner(folders);
  for (char** folder = folders; *folder != nullptr; ++folder) m_shown.emplace_back(*folder);
  g_dbus_method_invocation_return_value(call, nullptr);
}

}  // namespace dayvane::testing
