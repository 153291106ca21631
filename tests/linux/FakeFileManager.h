// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "linux/glib/GlibHandles.h"

namespace dayvane::testing {

/// A message bus with nobody on it, which is the user's own for as long as it lives. The tests' desktop has none
/// otherwise.
class PrivateBus {
 public:
  PrivateBus();
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;
  ~PrivateBus();

  /// Ends the bus as a crash would.
  void Kill();

  std::string Address() const;

 private:
  glib::Object<GTestDBus> m_bus;
  std::string m_addressBefore;
  std::string m_runtimeFolderBefore;
  bool m_running = true;
};

/// A file manager on the bus that shows nothing and remembers what it was asked for.
class FakeFileManager {
 public:
  explicit FakeFileManager(const PrivateBus& bus);
  FakeFileManager(const FakeFileManager&) = delete;
  FakeFileManager& operator=(const FakeFileManager&) = delete;
  ~FakeFileManager();

  void FailFromNowOn() { m_fails = true; }
  int Asked() const { return m_asked; }
  const std::vector<std::string>& Shown() const { return m_shown; }  ///< addresses of folders

 private:
  static void MethodCalled(GDBusConnection* bus, const char* sender, const char* path, const char* interface,
                           const char* method, GVariant* arguments, GDBusMethodInvocation* call, gpointer self);

  glib::Object<GDBusConnection> m_connection;
  guint m_registration = 0;
  std::vector<std::string> m_shown;
  int m_asked = 0;
  bool m_fails = false;
};

}  // namespace dayvane::testing
