// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "controls/Deferred.h"
#include "linux/activation/BusApplication.h"
#include "platform/Windowing.h"
#include "shell/FMainControls.h"

namespace dayvane::activation {

/// What launchers and scripts ask of the program over the bus: its window, whatever hid it, and commands, among them
/// three of the tray's menu, which are enabled when the tray shows them. All of it waits until the program can begin
/// something new and the user has answered what is asked; what is asked before the main window has loaded waits for
/// that too.
class Activation {
 public:
  using Act = std::function<void()>;

  /// Both must outlive this. A bus that registers later does not learn of the commands.
  Activation(BusApplication& bus, platform::Windowing& windowing);

  /// A command by its name on the bus.
  void Offer(const std::string& name, Act act);

  /// One that is on or off; `set` is told what it shall be, and tells the bus what it has become.
  void OfferSwitch(const std::string& name, bool isOn, std::function<void(bool)> set);

  /// What is done outside this by a call of the bus waits by the same rules: `act` is done once, however often a
  /// stranger asks meanwhile, and for the last that asked.
  void Ask(const std::string& name, Act act);

  /// Serves the main window, which has loaded and must outlive this.
  void Serve(FMainControls& main);

 private:
  void Defer(const std::string& name);
  void Fulfil(const std::string& name);
  void ShowWindow(const std::string& token);

  BusApplication& m_bus;
  platform::Windowing& m_windowing;
  FMainControls* m_main = nullptr;
  std::vector<std::string> m_order;  ///< of the wishes, by name
  std::map<std::string, Act> m_wishes;
  QObject m_context;
  controls::Deferred m_deferred;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::activation
