// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "base/ReportEvent.h"
#include "controls/Signal.h"
#include "linux/glib/GlibHandles.h"

namespace dayvane::activation {

/// The program on the session bus, where launchers call it instead of starting it a second time: they activate it, and
/// they choose among its commands. Without a bus, or where it has not registered, nobody ever calls.
///
/// For the one running instance alone, which holds its lock: a name that is taken is never a reason to end.
class BusApplication {
 public:
  BusApplication() = default;
  BusApplication(const BusApplication&) = delete;
  BusApplication& operator=(const BusApplication&) = delete;

  /// Takes the name, unless there is no bus or somebody else has it.
  void Register(const ReportEvent& reportEvent);

  /// Gives the name back before it returns, so that the next start finds it free.
  ~BusApplication();

  bool IsOnBus() const { return Connection() != nullptr; }

  /// Where its name is owned; nullptr when it is not on the bus.
  GDBusConnection* Connection() const;

  /// Shows the user a notification; a desktop takes a click on it for one on the program's icon.
  void Notify(const char* title, const char* text) const;

  /// A command by its name on the bus.
  void AddCommand(const std::string& name, std::function<void()> act);
  void SetCommandEnabled(const std::string& name, bool isEnabled);

  /// One that is on or off. It stays so until SetSwitch says what `set` has made of it.
  void AddSwitch(const std::string& name, bool isOn, std::function<void(bool wanted)> set);
  void SetSwitch(const std::string& name, bool isOn);

  /// The user wants the window. `token` is what the window system is shown for the right to come to the front; empty
  /// where the caller has none.
  controls::Signal<const std::string&> Activated;

 private:
  GSimpleAction* Find(const std::string& name) const;
  void Add(GSimpleAction* action, const char* signal, GCallback callback, gpointer data, GClosureNotify freeData);

  glib::Object<GApplication> m_application;  ///< nullptr when it is not on the bus
};

}  // namespace dayvane::activation
