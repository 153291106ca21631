// SPDX-License-Identifier: MIT
#include "bench/WindowClock.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

namespace dayvane {

namespace {

constexpr int kPatience = 60'000;  // milliseconds
constexpr std::uint32_t kLongestProperty = 4096;
constexpr std::string_view kTitle = "Dayvane - ";

pid_t Spawn(std::string program) {
  char* arguments[] = {program.data(), nullptr};
  pid_t process = 0;
  if (posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments, environ) != 0)
    throw std::runtime_error("cannot start " + program);
  return process;
}

}  // namespace

void WindowClock::Free::operator()(void* reply) const {
  std::free(reply);  // NOLINT(cppcoreguidelines-no-malloc): that is how the library hands out what it has read
}

WindowClock::WindowClock() : m_connection(xcb_connect(nullptr, nullptr)) {
  if (xcb_connection_has_error(m_connection.get()) != 0) throw std::runtime_error("no screen to show a window on");
  m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data->root;
  m_windows = Atom("_NET_CLIENT_LIST");
  m_name = Atom("_NET_WM_NAME");
  m_protocols = Atom("WM_PROTOCOLS");
  m_ping = Atom("_NET_WM_PING");
  // Qt answers to those who listen to the root's own structure, other libraries to those who listen to its children's.
  const std::uint32_t events =
      XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(m_connection.get(), m_root, XCB_CW_EVENT_MASK, &events);
  xcb_flush(m_connection.get());
}

WindowClock::Started WindowClock::Start(const std::string& program) {
  const auto begin = std::chrono::steady_clock::now();
  const pid_t process = Spawn(program);
  auto window = MainWindow();
  for (; !window; window = MainWindow()) NextEvent();
  WaitForAnswer(*window);
  WaitForAnswer(*window);
  return {process, std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count()};
}

void WindowClock::End(pid_t process) {
  kill(process, SIGTERM);
  waitpid(process, nullptr, 0);
}

xcb_atom_t WindowClock::Atom(const std::string& name) const {
  const auto cookie = xcb_intern_atom(m_connection.get(), 0, static_cast<std::uint16_t>(name.size()), name.data());
  const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection.get(), cookie, nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

WindowClock::Owned<xcb_get_property_reply_t> WindowClock::Property(xcb_window_t window, xcb_atom_t property) const {
  const auto cookie =
      xcb_get_property(m_connection.get(), 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, kLongestProperty);
  return Owned<xcb_get_property_reply_t>(xcb_get_property_reply(m_connection.get(), cookie, nullptr));
}

bool WindowClock::IsMainWindow(xcb_window_t window) const {
  const auto name = Property(window, m_name);
  if (!name) return false;
  const std::string_view title(static_cast<const char*>(xcb_get_property_value(name.get())),
                               static_cast<std::size_t>(xcb_get_property_value_length(name.get())));
  return title.starts_with(kTitle);
}

std::optional<xcb_window_t> WindowClock::MainWindow() const {
  const auto list = Property(m_root, m_windows);
  if (!list) return std::nullopt;
  const auto* windows = static_cast<const xcb_window_t*>(xcb_get_property_value(list.get()));
  const std::size_t count = static_cast<std::size_t>(xcb_get_property_value_length(list.get())) / sizeof(xcb_window_t);
  for (std::size_t i = 0; i < count; ++i)
    if (IsMainWindow(windows[i])) return windows[i];
  return std::nullopt;
}

WindowClock::Owned<xcb_generic_event_t> WindowClock::NextEvent() const {
  pollfd screen{xcb_get_file_descriptor(m_connection.get()), POLLIN, 0};
  for (;;) {
    if (Owned<xcb_generic_event_t> event(xcb_poll_for_event(m_connection.get())); event) return event;
    if (xcb_connection_has_error(m_connection.get()) != 0) throw std::runtime_error("the screen has gone");
    if (poll(&screen, 1, kPatience) == 0) throw std::runtime_error("no window comes, or it does not answer");
  }
}

void WindowClock::WaitForAnswer(xcb_window_t window) {
  ++m_pings;
  Ping(window);
  for (;;) {
    const auto event = NextEvent();
    constexpr int kSent = 0x80;  // the bit of events that another program sends
    if ((event->response_type & ~kSent) != XCB_CLIENT_MESSAGE) continue;
    const auto& data = reinterpret_cast<const xcb_client_message_event_t*>(event.get())->data;
    if (data.data32[0] == m_ping && data.data32[1] == m_pings) return;
  }
}

void WindowClock::Ping(xcb_window_t window) const {
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = window;
  message.type = m_protocols;
  message.data.data32[0] = m_ping;
  message.data.data32[1] = m_pings;
  message.data.data32[2] = window;
  xcb_send_event(m_connection.get(), 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&message));
  xcb_flush(m_connection.get());
}

}  // namespace dayvane
