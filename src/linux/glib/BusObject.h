// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "linux/glib/GlibHandles.h"

namespace dayvane::glib {

/// An object of another program on the session bus. Programs come and go; without a bus none ever appears.
class BusObject {
 public:
  struct Address {
    const char* name;  ///< of the bus; all three outlive the object
    const char* path;
    const char* interface;
  };

  struct Events {
    std::function<void()> appeared;
    std::function<void()> vanished;  ///< also when the object is not there at first
    std::function<void(const char* signal, GVariant* arguments)> signalled;
  };

  enum class Start { OnlyWatch, StartProgram };

  BusObject(const Address& address, Start start, Events events);
  BusObject(const BusObject&) = delete;
  BusObject& operator=(const BusObject&) = delete;
  ~BusObject();

  /// Calls a method; `answered` gets its results, or nullptr when it failed, and is not called once this object is
  /// gone. Takes over floating arguments.
  void Call(const char* interface, const char* method, GVariant* arguments, std::function<void(GVariant*)> answered);

 private:
  static void Appeared(GDBusConnection* connection, const char* name, const char* owner, gpointer self);
  static void Vanished(GDBusConnection* connection, const char* name, gpointer self);
  static void Signalled(GDBusConnection* connection, const char* sender, const char* path, const char* interface,
                        const char* signal, GVariant* arguments, gpointer self);
  static void Answered(GObject* connection, GAsyncResult* result, gpointer answered);
  void Unsubscribe();

  Address m_address;
  Events m_events;
  glib::Object<GCancellable> m_cancellable;
  glib::Object<GDBusConnection> m_connection;  ///< while the object is there
  guint m_subscription = 0;
  guint m_nameWatch = 0;
};

}  // namespace dayvane::glib
