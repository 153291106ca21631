// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <sys/types.h>
#include <xcb/xcb.h>

namespace dayvane {

/// Measures on an X screen with a window manager how long a program takes until its user can work with it.
class WindowClock {
 public:
  /// Fails with a std::runtime_error where there is no screen.
  WindowClock();

  struct Started {
    pid_t process;
    double seconds;
  };

  /// Starts a program and returns when its main window ("Dayvane - …") is on the screen and answers: twice, because the
  /// first answer may come before what was posted at the same time, the painting of the window, is done.
  Started Start(const std::string& program);

  /// Asks a program to end, and returns when it has.
  static void End(pid_t process);

 private:
  struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
  };
  struct Free {
    void operator()(void* reply) const;
  };
  template <class Reply>
  using Owned = std::unique_ptr<Reply, Free>;

  xcb_atom_t Atom(const std::string& name) const;
  Owned<xcb_get_property_reply_t> Property(xcb_window_t window, xcb_atom_t property) const;
  bool IsMainWindow(xcb_window_t window) const;
  std::optional<xcb_window_t> MainWindow() const;
  Owned<xcb_generic_event_t> NextEvent() const;
  void WaitForAnswer(xcb_window_t window);
  void Ping(xcb_window_t window) const;

  std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
  xcb_window_t m_root = 0;
  xcb_atom_t m_windows = 0;  ///< all that the window manager shows
  xcb_atom_t m_name = 0;
  xcb_atom_t m_protocols = 0;
  xcb_atom_t m_ping = 0;
  std::uint32_t m_pings = 0;
};

}  // namespace dayvane
