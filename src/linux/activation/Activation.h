// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <string>
#include <vector>

#include "controls/Deferred.h"
#include "linux/activation/BusApplication.h"
#include "platform/Windowing.h"
#include "shell/FMainControls.h"

namespace dayvane::activation {

/// What launchers and scripts ask of the program over the bus: its window, whatever hid it, and three commands of the
/// tray's menu, which are enabled when the tray shows them. All of it waits until the program can begin something new
/// and the user has answered what is asked; what is asked before the main window has loaded waits for that too.
class Activation {
 public:
  /// Both must outlive this. A bus that registers later does not learn of the commands.
  Activation(BusApplication& bus, platform::Windowing& windowing);

  /// Serves the main window, which has loaded and must outlive this.
  void Serve(FMainControls& main);

 private:
  struct Wish {
    int item;  ///< of the tray's menu; kTrayShow for the window
    std::string token;
  };

  void Add(const char* name, int item, bool isEnabled);
  void Ask(int item, const std::string& token);
  void Defer(int item);
  void Fulfil(int item);
  void ShowWindow(const std::string& token);

  BusApplication& m_bus;
  platform::Windowing& m_windowing;
  FMainControls* m_main = nullptr;
  std::vector<Wish> m_wishes;  ///< one of a kind, however often a stranger calls
  QObject m_context;
  controls::Deferred m_deferred;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::activation
