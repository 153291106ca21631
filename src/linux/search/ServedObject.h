// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "linux/glib/GlibHandles.h"

namespace dayvane::search {

/// An object of this program on the session bus, with one interface, for as long as it lives.
class ServedObject {
 public:
  /// Answers a call, whose arguments are of the types that the interface says; nullptr answers nothing. An error is
  /// told to the caller.
  using Method = std::function<GVariant*(const std::string& name, GVariant* arguments)>;

  /// `introspection` is the interface as the bus's XML describes it.
  ServedObject(GDBusConnection* connection, const char* path, const char* introspection, Method method);
  ServedObject(const ServedObject&) = delete;
  ServedObject& operator=(const ServedObject&) = delete;
  ~ServedObject();

 private:
  static void Called(GDBusConnection* connection, const char* sender, const char* path, const char* interface,
                     const char* method, GVariant* arguments, GDBusMethodInvocation* call, gpointer self);

  Method m_method;
  glib::Object<GDBusConnection> m_connection;
  guint m_registration = 0;
};

}  // namespace dayvane::search
