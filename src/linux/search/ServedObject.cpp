// SPDX-License-Identifier: MIT
#include "linux/search/ServedObject.h"

#include <utility>

#include "linux/glib/ErrorNet.h"

namespace dayvane::search {

namespace {

struct UnrefNode {
  void operator()(GDBusNodeInfo* info) const { g_dbus_node_info_unref(info); }
};

}  // namespace

ServedObject::ServedObject(GDBusConnection* connection, const char* path, const char* introspection, Method method)
    : m_method(std::move(method)), m_connection(G_DBUS_CONNECTION(g_object_ref(connection))) {
  const std::unique_ptr<GDBusNodeInfo, UnrefNode> info(g_dbus_node_info_new_for_xml(introspection, nullptr));
  static constexpr GDBusInterfaceVTable kMethods{Called, nullptr, nullptr, {}};
  m_registration =
      g_dbus_connection_register_object(connection, path, info->interfaces[0], &kMethods, this, nullptr, nullptr);
}

ServedObject::~ServedObject() {
  if (m_registration != 0) g_dbus_connection_unregister_object(m_connection.get(), m_registration);
}

void ServedObject::Called(GDBusConnection* /*connection*/, const char* /*sender*/, const char* /*path*/,
                          const char* /*interface*/, const char* method, GVariant* arguments,
                          GDBusMethodInvocation* call, gpointer self) {
  bool isAnswered = false;
  CatchErrors(kProcessingSelection, [&] {
    GVariant* answer = static_cast<ServedObject*>(self)->m_method(method, arguments);
    isAnswered = true;
    g_dbus_method_invocation_return_value(call, answer);
  });
  if (!isAnswered) g_dbus_method_invocation_return_error_literal(call, G_DBUS_ERROR, G_DBUS_ERROR_FAILED, "Failed");
}

}  // namespace dayvane::search
